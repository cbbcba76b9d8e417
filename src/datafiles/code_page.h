#pragma once

#include <string>
#include <string_view>

// Code page 1252, in which race files keep their texts: a byte a character.

/// UTF-8 of bytes in code page 1252, to be shown. Control characters, zero bytes among them, become blanks; the five bytes without a
/// character become the control characters U+0081 and so on, which go back to the same bytes.
[[nodiscard]] std::string textOfCodePage(std::string_view bytes);

/// Bytes in code page 1252 of a UTF-8 text. Control characters stay; a character that the code page has not, and a byte
/// that is no UTF-8, becomes "?".
[[nodiscard]] std::string codePageOf(std::string_view text);

/// Whether a text is UTF-8 throughout.
[[nodiscard]] bool isUtf8(std::string_view text);

/// How many characters a UTF-8 text has; a byte that is no UTF-8 counts as one.
[[nodiscard]] std::size_t characterCount(std::string_view text);
