#pragma once

#include "AecModel/AecModelApi.h"

#include <string>
#include <string_view>

namespace aec::model
{

// Finds the character encoding of a text file: its byte order mark (UTF-8, UTF-16 LE or BE) when it
// has one, else UTF-16 LE or BE when every other byte is mostly zero, else UTF-8 when the bytes are
// valid UTF-8, else what ICU's charset detection finds most likely (Windows-1252 in the Windows
// build, which has no ICU). Plain ASCII counts as UTF-8.
class AECMODEL_API CTextEncodingDetector
{
public:
    // A converter name such as "UTF-8", "UTF-16LE" or "windows-1252".
    static std::string detect(std::string_view bytes);
};

} // namespace aec::model
