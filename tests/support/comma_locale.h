#pragma once

#include <clocale>
#include <locale>
#include <string>

/// A locale that writes 1234.5 as "1.234,5", for as long as it lives: the C++ one always, the C one if the machine has
/// one of these installed.
class CommaLocale
{
public:
    CommaLocale()
    {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8", "nl_NL.UTF-8", "de_DE"})
            if (std::setlocale(LC_ALL, name) != nullptr)
                break;
        std::locale::global(std::locale(std::locale::classic(), new Punctuation));
    }

    ~CommaLocale()
    {
        std::locale::global(std::locale::classic());
        std::setlocale(LC_ALL, "C");
    }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    struct Punctuation : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
};
