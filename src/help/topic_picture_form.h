#pragma once

#include "forms/controls.h"
#include "help/help_topics.h"

/// Draws the picture of a topic, and makes it one to be pressed.
void drawTopic(Picture& picture, HelpTopicName topic);

/// Draws a curve of speed against distance between two corners, with three races on it.
void drawCurve(Picture& picture, Point leftTop, Point rightBottom);
