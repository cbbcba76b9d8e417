#include "support/table_file.h"

#include <charconv>
#include <cstddef>
#include <fstream>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <system_error>

namespace
{
    std::vector<std::string> partsOf(const std::string& line)
    {
        std::vector<std::string> parts;
        std::istringstream stream(line);
        for (std::string part; std::getline(stream, part, ',');)
            parts.push_back(part);
        if (line.ends_with(','))
            parts.emplace_back();
        return parts;
    }
}

const std::string& TableRow::text(const std::string& column) const
{
    return values.at(column);
}

double TableRow::number(const std::string& column) const
{
    const std::string& digits = text(column);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc{} || end != digits.data() + digits.size())
        throw std::runtime_error(name + ": " + column + " is no number: " + digits);
    return value;
}

char TableRow::letter(const std::string& column) const
{
    const std::string& only = text(column);
    if (only.size() != 1)
        throw std::runtime_error(name + ": " + column + " is no single letter: " + only);
    return only.front();
}

std::ostream& operator<<(std::ostream& out, const TableRow& row)
{
    for (const auto& [column, value] : row.values)
        out << column << ' ' << value << "; ";
    return out;
}

std::vector<TableRow> readTable(const std::string& path)
{
    std::ifstream file(std::string(VANTELOS_SOURCE_DIR) + "/tests/" + path);
    std::string line;
    std::getline(file, line);
    const std::vector<std::string> columns = partsOf(line);
    std::vector<TableRow> rows;
    while (std::getline(file, line))
    {
        const std::vector<std::string> values = partsOf(line);
        if (values.size() != columns.size())
            throw std::runtime_error(path + ": " + line);
        TableRow row;
        for (std::size_t i = 0; i < columns.size(); ++i)
            row.values[columns[i]] = values[i];
        row.name = row.text("name");
        rows.push_back(row);
    }
    if (rows.empty())
        throw std::runtime_error(path + " holds no row");
    return rows;
}
