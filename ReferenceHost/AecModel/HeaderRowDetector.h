#pragma once

#include "AecModel/AecModelApi.h"

#include <string>
#include <string_view>
#include <vector>

namespace aec::model
{

// Tells whether the first row of a table names its columns: it holds text only, and over a column
// whose other cells are numbers it holds text. A table of one row of text is taken for a header
// with no data yet.
class AECMODEL_API CHeaderRowDetector
{
public:
    // The first rows of the table; a few dozen are enough.
    static bool detect(const std::vector<std::vector<std::string>>& rows);

    // A number as spreadsheet programs write them in any locale: "12", "-4.5", "24,5", "1e3", "15%".
    static bool isNumber(std::string_view text);
};

} // namespace aec::model
