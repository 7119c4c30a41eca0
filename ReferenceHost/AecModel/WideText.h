#pragma once

#include "AecModel/AecModelApi.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace aec::model
{

// Names are wide strings in the model and UTF-8 in files and dumps.

// Code units that are no character (a lone surrogate) are left out.
AECMODEL_API std::string toUtf8(std::wstring_view text);
// Throws common::EException when the text is not valid UTF-8.
AECMODEL_API std::wstring fromUtf8(std::string_view text);
// The text without the bytes that are no part of a UTF-8 character.
std::string toValidUtf8(std::string_view text);
// A file name typed or given as UTF-8, whatever the locale or the Windows code page says.
AECMODEL_API std::filesystem::path pathFromUtf8(std::string_view text);

} // namespace aec::model
