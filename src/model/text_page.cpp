#include "model/text_page.h"

#include <cstddef>

#include "model/text.h"

namespace
{
    constexpr std::size_t zoneWidth = 14;

    std::string& openLine(TextPage& page)
    {
        if (!page.lineOpen)
            page.lines.emplace_back();
        page.lineOpen = true;
        return page.lines.back();
    }

    void padTo(std::string& line, std::size_t length)
    {
        if (line.size() < length)
            line.resize(length, ' ');
    }
}

void clear(TextPage& page)
{
    page.lines.clear();
    page.lineOpen = false;
}

void print(TextPage& page, std::string_view text)
{
    openLine(page) += text;
}

void print(TextPage& page, double number)
{
    print(page, (number < 0 ? " " : "") + signedText(number) + ' ');
}

void goToColumn(TextPage& page, int column)
{
    if (column > 1)
        padTo(openLine(page), static_cast<std::size_t>(column - 1));
}

void goToZone(TextPage& page)
{
    std::string& line = openLine(page);
    padTo(line, (line.size() / zoneWidth + 1) * zoneWidth);
}

void newLine(TextPage& page)
{
    openLine(page);
    page.lineOpen = false;
}

void printLine(TextPage& page, std::string_view text)
{
    print(page, text);
    newLine(page);
}
