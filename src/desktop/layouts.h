#pragma once

#include <string_view>

#include "desktop/form_window.h"

/// How a form's window is laid out; nothing for a form that has none.
[[nodiscard]] Layout layoutOf(std::string_view form);
