#include "AecModel/CsvReader.h"

#include "Common/Exception.h"

#include <algorithm>
#include <fmt/format.h>

namespace aec::model
{

CCsvReader::CCsvReader(std::string_view text, char delimiter) : text_(text), delimiter_(delimiter) {}

bool CCsvReader::next(std::vector<std::string>& fields)
{
    if (atEnd())
        return false;
    std::size_t count = 0;
    for (;;)
    {
        if (count == fields.size())
            fields.emplace_back();
        std::string& field = fields[count++];
        field.clear();
        if (text_[position_] == '"')
            readQuoted(field);
        readUnquoted(field);
        if (atEnd() || text_[position_] != delimiter_)
            break;
        ++position_;
        if (atEnd())
        {
            // A delimiter right at the end of the text still ends a field: the last one is empty.
            if (count == fields.size())
                fields.emplace_back();
            fields[count++].clear();
            break;
        }
    }
    if (!atEnd())
        skipLineEnd();
    fields.resize(count);
    return true;
}

void CCsvReader::readQuoted(std::string& field)
{
    const std::size_t openingLine = line_;
    ++position_;
    for (;;)
    {
        const std::size_t quote = text_.find('"', position_);
        if (quote == std::string_view::npos)
            throw common::EException(
                fmt::format("line {}: a quoted field starts here and has no closing quote", openingLine));
        const std::string_view inside = text_.substr(position_, quote - position_);
        line_ += static_cast<std::size_t>(std::count(inside.begin(), inside.end(), '\n'));
        field += inside;
        position_ = quote + 1;
        if (atEnd() || text_[position_] != '"')
            return;
        field += '"';
        ++position_;
    }
}

void CCsvReader::readUnquoted(std::string& field)
{
    const std::size_t start = position_;
    while (!atFieldEnd())
        ++position_;
    field += text_.substr(start, position_ - start);
}

bool CCsvReader::atLineEnd() const noexcept
{
    return text_[position_] == '\n' || text_[position_] == '\r';
}

void CCsvReader::skipLineEnd() noexcept
{
    position_ += text_.substr(position_).starts_with("\r\n") ? 2 : 1;
    ++line_;
}

} // namespace aec::model
