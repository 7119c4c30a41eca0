#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace aec::model
{

// Reads comma-separated values as RFC 4180 defines them: records end at CRLF or LF, fields are
// separated by commas, a field that starts with a quote runs to the matching quote and may hold
// commas, line breaks and doubled quotes. The text is UTF-8, optionally after a byte order mark.
// Line breaks inside quoted fields read as LF whatever the file uses.
//
// Written by hand: none of the libraries at hand reads CSV strictly, and a user who fixes a file
// needs the line of the fault (where a quote was opened and never closed, for instance), which
// lenient readers do not report.
class CCsvReader
{
public:
    // Each record as its fields, in UTF-8.
    using Records = std::vector<std::vector<std::string>>;

    explicit CCsvReader(std::string_view text);

    // Throws common::EException "line <n>: <fault>" for text that is not valid UTF-8, a quoted field
    // without its closing quote, a quote inside an unquoted field, and text after a closing quote.
    // Records may have different numbers of fields.
    Records read();

private:
    void checkUtf8() const;
    std::vector<std::string> readRecord();
    std::string readQuoted();
    std::string readUnquoted();
    bool atEnd() const noexcept { return position_ == text_.size(); }
    bool atLineEnd() const noexcept;
    void skipLineEnd() noexcept;
    [[noreturn]] static void fail(std::size_t line, std::string_view fault);

    std::string_view text_;
    std::size_t position_ = 0;
    std::size_t line_ = 1;
};

} // namespace aec::model
