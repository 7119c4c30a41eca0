#pragma once

#include "AecModel/AecModelApi.h"

#include <string>
#include <string_view>

namespace aec::model
{

// Turns the bytes of a text file into UTF-8 through the platform's converters, dropping a byte
// order mark.
// The bytes are taken over so that UTF-8, the common case, costs no copy.
class AECMODEL_API CTextDecoder
{
public:
    // Throws common::EException "line <n>: ..." for bytes that are not valid in the encoding the
    // user chose when that is UTF-8, and "..." for an encoding the converter does not know.
    static std::string toUtf8(std::string bytes, const std::string& encoding);
};

} // namespace aec::model
