#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Texts as people type them, and as they are shown again in an error.

/// A text without the blanks and tabs at its ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// Its words, parted by blanks and tabs.
[[nodiscard]] std::vector<std::string_view> wordsOf(std::string_view text);

/// A text with its ASCII letters in lower case.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// The number that a whole text is, blanks at its ends apart; nothing for any other text, or beyond a double.
[[nodiscard]] std::optional<double> numberOf(std::string_view text);

/// A text that any terminal and any reader of UTF-8 can take: control characters, and all bytes beyond ASCII of a
/// text that is no UTF-8, become question marks.
[[nodiscard]] std::string printable(std::string_view text);

/// A printable text in quotation marks for an error; what is longer than a line is cut and ends in dots.
[[nodiscard]] std::string inQuotes(std::string_view text);
