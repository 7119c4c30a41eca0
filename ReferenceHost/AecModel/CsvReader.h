#pragma once

#include "AecModel/AecModelApi.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace aec::model
{

// Reads delimited text as spreadsheet programs do. Records end at CR LF, LF or a lone CR; a field
// that starts with a quote runs to the matching quote and may hold delimiters, line breaks (kept
// exactly as written, CR LF included) and doubled quotes; text after its closing quote is kept as
// it is. A quote anywhere else in a field is an ordinary character (37°36'37.8"N).
//
// Written by hand: the libraries at hand read either strictly (refusing files that spreadsheet
// programs open) or without the line of a quote that is never closed, which a user fixing a file
// needs. Records are read one at a time into reused strings, so a large file costs no more than
// its text and the cells the caller keeps.
class AECMODEL_API CCsvReader
{
public:
    CCsvReader(std::string_view text, char delimiter);

    // The next record's fields, or false after the last one. Throws common::EException "line <n>:
    // ..." for a quoted field that is never closed.
    bool next(std::vector<std::string>& fields);

    // How far the reader is into the text, in bytes.
    std::size_t position() const noexcept { return position_; }

private:
    void readQuoted(std::string& field);
    void readUnquoted(std::string& field);
    bool atEnd() const noexcept { return position_ == text_.size(); }
    bool atLineEnd() const noexcept;
    bool atFieldEnd() const noexcept { return atEnd() || text_[position_] == delimiter_ || atLineEnd(); }
    void skipLineEnd() noexcept;

    std::string_view text_;
    char delimiter_;
    std::size_t position_ = 0;
    std::size_t line_ = 1;
};

} // namespace aec::model
