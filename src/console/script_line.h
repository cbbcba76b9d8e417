#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

/// Something in a script that nobody could do; what() says what. It ends the script.
class ScriptMistake : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// One line of a script, read word by word. Words are parted by blanks; a word in double quotes may hold blanks.
class ScriptLine
{
public:
    explicit ScriptLine(std::string lineText);

    /// Whether the line says nothing: blanks, or a comment that begins with #.
    [[nodiscard]] bool isBlank() const;

    /// The next word. `what` names it where it is missing.  Throws ScriptMistake.
    [[nodiscard]] std::string word(const char* what);

    /// All words that are left.
    [[nodiscard]] std::vector<std::string> words();

    /// Makes sure that nothing is left.  Throws ScriptMistake.
    void end() const;

    /// What is left of the line behind one blank, as it was typed.
    [[nodiscard]] std::string rest() const;

private:
    std::string text;
    std::size_t position = 0;
};
