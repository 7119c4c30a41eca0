#pragma once

#include "Common/UUID.h"

#include <string_view>

// The platform's UUID services: its generator, and its reader and writer of the text form. On
// Windows these are the RPC runtime's functions; elsewhere portable code of libCommon. Internal to
// libCommon: UUID turns the statuses into its contract violations, so that every platform fails
// the same operations at the same places.
namespace common::uuid_platform
{

enum class Status
{
    ok,
    // The text is not a UUID (the RPC runtime's RPC_S_INVALID_STRING_UUID, 1705).
    notAUuid,
    // Anything else the platform reports, such as a UUID unique to this computer only.
    failed,
};

// A fresh random UUID.
Status create(UUID& uuid) noexcept;

// The 36-character form (digits in either case, no braces). `uuid` is left as it was unless the
// status is ok.
Status read(std::string_view text, UUID& uuid) noexcept;
Status read(std::wstring_view text, UUID& uuid) noexcept;

// The 36-character lower-case form into text[0 .. UUID::textLength).
Status write(const UUID& uuid, char* text) noexcept;
Status write(const UUID& uuid, wchar_t* text) noexcept;

} // namespace common::uuid_platform
