#pragma once

#include <string_view>

#include "desktop/form_window.h"

using LayoutFinder = Layout (*)(std::string_view form);

/// How a form's window is laid out; nothing for a form that has none.
[[nodiscard]] Layout layoutOfForm(std::string_view form);
