#include "AecModel/CsvReader.h"

#include "Common/Exception.h"

#include <boost/locale/utf.hpp>
#include <fmt/format.h>

namespace aec::model
{

namespace
{

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

} // namespace

CCsvReader::CCsvReader(std::string_view text) : text_(text)
{
    if (text_.starts_with(byteOrderMark))
        text_.remove_prefix(byteOrderMark.size());
}

CCsvReader::Records CCsvReader::read()
{
    checkUtf8();
    Records records;
    while (!atEnd())
        records.push_back(readRecord());
    return records;
}

void CCsvReader::checkUtf8() const
{
    using Utf8 = boost::locale::utf::utf_traits<char>;
    std::size_t line = 1;
    for (auto next = text_.begin(); next != text_.end();)
    {
        if (*next == '\n')
            ++line;
        const boost::locale::utf::code_point character = Utf8::decode(next, text_.end());
        if (character == boost::locale::utf::illegal || character == boost::locale::utf::incomplete)
            fail(line, "the text is not valid UTF-8; save the file with UTF-8 encoding");
    }
}

std::vector<std::string> CCsvReader::readRecord()
{
    std::vector<std::string> fields;
    for (;;)
    {
        fields.push_back(!atEnd() && text_[position_] == '"' ? readQuoted() : readUnquoted());
        if (atEnd())
            return fields;
        if (text_[position_] != ',')
        {
            skipLineEnd();
            return fields;
        }
        ++position_;
    }
}

std::string CCsvReader::readQuoted()
{
    const std::size_t openingLine = line_;
    ++position_;
    std::string field;
    for (;;)
    {
        if (atEnd())
            fail(openingLine, "a quoted field starts here and has no closing quote");
        if (text_[position_] == '"')
        {
            ++position_;
            if (atEnd() || text_[position_] != '"')
                break;
            field += '"';
            ++position_;
        }
        else if (atLineEnd())
        {
            field += '\n';
            skipLineEnd();
        }
        else
            field += text_[position_++];
    }
    if (!atEnd() && text_[position_] != ',' && !atLineEnd())
        fail(line_, "a quoted field goes on after its closing quote; double the quotes inside it");
    return field;
}

std::string CCsvReader::readUnquoted()
{
    const std::size_t start = position_;
    for (; !atEnd() && text_[position_] != ',' && !atLineEnd(); ++position_)
        if (text_[position_] == '"')
            fail(line_, "a quote appears inside an unquoted field; put the field in quotes and double the "
                        "quotes inside it");
    return std::string(text_.substr(start, position_ - start));
}

bool CCsvReader::atLineEnd() const noexcept
{
    return text_[position_] == '\n' || text_.substr(position_).starts_with("\r\n");
}

void CCsvReader::skipLineEnd() noexcept
{
    position_ += text_[position_] == '\r' ? 2 : 1;
    ++line_;
}

void CCsvReader::fail(std::size_t line, std::string_view fault)
{
    throw common::EException(fmt::format("line {}: {}", line, fault));
}

} // namespace aec::model
