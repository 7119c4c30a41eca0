#pragma once

#include "Common/UUID.h"

#include <optional>
#include <string_view>

// The text form of a UUID, "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx", read and written without
// allocating. Internal to libCommon; everyone else goes through UUID.
namespace common::uuid_text
{

// Reads the 36-character form (digits in either case, no braces); nothing for anything else.
std::optional<UUID> read(std::string_view text) noexcept;
std::optional<UUID> read(std::wstring_view text) noexcept;

// Writes the 36-character lower-case form.
void write(const UUID& uuid, char* text) noexcept;
void write(const UUID& uuid, wchar_t* text) noexcept;

} // namespace common::uuid_text
