#pragma once

#include <string>
#include <string_view>

#include "model/text_page.h"

/// The lines of a page, each with its end.
[[nodiscard]] std::string textOf(const TextPage& page);

/// The lines of a page as CSV: what two or more blanks part are fields. Empty lines are left out.
[[nodiscard]] std::string csvOf(const TextPage& page);

/// A field of a CSV line: in quotation marks if it holds a comma or one of those.
[[nodiscard]] std::string csvField(std::string_view field);
