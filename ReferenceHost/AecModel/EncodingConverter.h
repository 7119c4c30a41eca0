#pragma once

#include <string>
#include <string_view>

namespace aec::model
{

// The platform's converter of character encodings: ICU on Linux, the system's code pages on
// Windows, where the cross toolchain has no ICU.

// Whether the encoding name means UTF-8, spelled any way the converter accepts.
bool isUtf8EncodingName(const std::string& encoding);

// The bytes as UTF-8; bytes the encoding has no character for read as U+FFFD, as spreadsheet
// programs show them. Throws common::EException for an encoding the converter does not know.
std::string convertToUtf8(std::string_view bytes, const std::string& encoding);

} // namespace aec::model
