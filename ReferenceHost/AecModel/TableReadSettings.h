#pragma once

#include <optional>
#include <string>

namespace aec::model
{

// How a table file is read: what detection found, or what the user chose over it. The encoding and
// the delimiter matter only for delimited text; spreadsheets carry their own.
struct TableReadSettings
{
    // An ICU converter name: "UTF-8", "UTF-16LE", "UTF-16BE", "windows-1252", "ISO-8859-2", ...
    std::string encoding = "UTF-8";
    char delimiter = ',';
    bool headerRow = false;
};

// What the user chose in a preview; what is left unset is detected.
struct TableReadChoices
{
    std::optional<std::string> encoding;
    std::optional<char> delimiter;
    std::optional<bool> headerRow;
};

} // namespace aec::model
