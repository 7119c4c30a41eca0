#pragma once

#include "AecModel/AecModelApi.h"

#include <string_view>

namespace aec::model
{

// Finds which of comma, semicolon, tab and vertical bar separates the fields of delimited text, from
// its first records: the delimiter that splits them into the same number of fields (more than
// one) outside quotes. When several do, tab and vertical bar, which hardly occur in cell text, come
// before semicolon, and semicolon before comma, which is also the decimal separator of the files
// that spreadsheet programs write with semicolons.
class AECMODEL_API CDelimiterSniffer
{
public:
    static char sniff(std::string_view text);
};

} // namespace aec::model
