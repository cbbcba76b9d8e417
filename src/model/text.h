#pragma once

#include <string>
#include <string_view>

// Numbers as texts and texts as numbers. Nothing here looks at the locale.

/// The leading number of a text: blanks are skipped, then a sign, digits, a point and an exponent are taken, and
/// the first other character ends it ("12 km" is 12, "1,5" is 1, "45x" is 45).
/// Returns 0 if there is none.  Faults: a number beyond the range of a double ("1e999").
[[nodiscard]] double val(std::string_view text);

/// Whether the whole text, blanks at the ends apart, is one number: "0" and " 4.5e1 " are, "45x" and "" are not.
[[nodiscard]] bool isNumeric(std::string_view text);

/// A number as a field holds it: at most 15 significant digits, no needless zeros, "0.5", "-3", "1E+20".
[[nodiscard]] std::string plainText(double number);

/// A number as it is printed: a blank or a minus for the sign and no zero before the point, " 3", " .75", "-.5".
[[nodiscard]] std::string signedText(double number);

/// A number in as many digits as it takes to read the same double back.
[[nodiscard]] std::string exactText(double number);

/// A time as a text of normally ten characters: "      43.2" below 59.95 s, else " 2:05:46  ".
///   seconds   s; a value below 0.105 is replaced by its value in hundredths (0 at the least) in the caller's
///             variable, too
/// Tenths are cut after 0.0500011 is added, so a value a hair below 0.95 or 9.95 shows a bare point ("       01.", "       10.").
/// Of more than three digits of hours the last three are kept.
[[nodiscard]] std::string formatTime(double& seconds);
[[nodiscard]] std::string formatTime(double&& seconds);

/// A number with a fixed count of decimals, blanks in front up to `width`; a longer text stays as it is.
/// The double's exact value is rounded, a tie to the even digit; what shows as zero has no minus.
///   decimals  0 to 5; any other count gives blanks alone
[[nodiscard]] std::string formatNumber(double value, int width, int decimals);

/// 0 if the value, taken as text and read as a leading number, is 0, and 1 otherwise: 0 counts as not numeric,
/// as "abc" does.
[[nodiscard]] int numericEntry(double value);
[[nodiscard]] int numericEntry(std::string_view text);
