#include "AecModel/HeaderRowDetector.h"

#include <algorithm>
#include <cctype>

namespace aec::model
{

namespace
{

bool isDigit(char character)
{
    return std::isdigit(static_cast<unsigned char>(character)) != 0;
}

// Skips the digits from position on and says how many there were.
std::size_t skipDigits(std::string_view text, std::size_t& position)
{
    const std::size_t start = position;
    while (position < text.size() && isDigit(text[position]))
        ++position;
    return position - start;
}

bool isBlankCell(std::string_view text)
{
    return std::ranges::all_of(text, [](char character) { return character == ' '; });
}

} // namespace

bool CHeaderRowDetector::isNumber(std::string_view text)
{
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    if (text.ends_with('%'))
        text.remove_suffix(1);
    std::size_t position = 0;
    if (position < text.size() && (text[position] == '-' || text[position] == '+'))
        ++position;
    std::size_t digits = skipDigits(text, position);
    if (position < text.size() && (text[position] == '.' || text[position] == ','))
    {
        ++position;
        digits += skipDigits(text, position);
    }
    if (digits == 0)
        return false;
    if (position < text.size() && (text[position] == 'e' || text[position] == 'E'))
    {
        ++position;
        if (position < text.size() && (text[position] == '-' || text[position] == '+'))
            ++position;
        if (skipDigits(text, position) == 0)
            return false;
    }
    return position == text.size();
}

bool CHeaderRowDetector::detect(const std::vector<std::vector<std::string>>& rows)
{
    if (rows.empty())
        return false;
    const std::vector<std::string>& first = rows.front();
    if (std::ranges::any_of(first, &CHeaderRowDetector::isNumber) || std::ranges::all_of(first, isBlankCell))
        return false;
    if (rows.size() == 1)
        return true;
    for (std::size_t column = 0; column < first.size(); ++column)
    {
        if (isBlankCell(first[column]))
            continue;
        bool anyNumber = false;
        bool onlyNumbers = true;
        for (std::size_t row = 1; row < rows.size() && onlyNumbers; ++row)
        {
            if (column >= rows[row].size() || isBlankCell(rows[row][column]))
                continue;
            anyNumber = true;
            onlyNumbers = isNumber(rows[row][column]);
        }
        if (anyNumber && onlyNumbers)
            return true;
    }
    return false;
}

} // namespace aec::model
