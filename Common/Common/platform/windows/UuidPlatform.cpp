#include "Common/UuidPlatform.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>

// <windows.h> comes first: the other Windows headers rely on its types.
// clang-format off
#include <windows.h>
#include <rpc.h>
// clang-format on

// The RPC runtime's UUID functions. A ::GUID has exactly UUID's storage layout (a 32-bit and two
// 16-bit fields, little-endian, then eight bytes), so the bytes are copied across unchanged.

namespace common::uuid_platform
{
namespace
{

static_assert(sizeof(::GUID) == sizeof(UUID::Bytes));

Status statusOf(RPC_STATUS status) noexcept
{
    if (status == RPC_S_OK)
        return Status::ok;
    return status == RPC_S_INVALID_STRING_UUID ? Status::notAUuid : Status::failed;
}

UUID fromGuid(const ::GUID& guid) noexcept
{
    UUID::Bytes bytes{};
    std::memcpy(bytes.data(), &guid, bytes.size());
    return UUID(bytes);
}

::GUID toGuid(const UUID& uuid) noexcept
{
    ::GUID guid{};
    std::memcpy(&guid, uuid.bytes().data(), sizeof guid);
    return guid;
}

// The runtime reads a NUL-terminated text: one holding a NUL of its own would be cut short there
// and might read as a UUID, so it is no UUID here either.
template <class Char>
bool holdsNul(std::basic_string_view<Char> text) noexcept
{
    return text.find(Char(0)) != std::basic_string_view<Char>::npos;
}

// The narrow and the wide functions of the runtime, by the width of the text.
RPC_STATUS fromString(char* text, ::GUID& guid) noexcept
{
    return ::UuidFromStringA(reinterpret_cast<RPC_CSTR>(text), &guid);
}

RPC_STATUS fromString(wchar_t* text, ::GUID& guid) noexcept
{
    return ::UuidFromStringW(reinterpret_cast<RPC_WSTR>(text), &guid);
}

RPC_STATUS toString(::GUID& guid, char*& text) noexcept
{
    return ::UuidToStringA(&guid, reinterpret_cast<RPC_CSTR*>(&text));
}

RPC_STATUS toString(::GUID& guid, wchar_t*& text) noexcept
{
    return ::UuidToStringW(&guid, reinterpret_cast<RPC_WSTR*>(&text));
}

// The runtime allocated the text; only its own function may free it.
void freeString(char*& text) noexcept
{
    ::RpcStringFreeA(reinterpret_cast<RPC_CSTR*>(&text));
}

void freeString(wchar_t*& text) noexcept
{
    ::RpcStringFreeW(reinterpret_cast<RPC_WSTR*>(&text));
}

template <class Char>
Status readText(std::basic_string_view<Char> text, UUID& uuid) noexcept
{
    if (holdsNul(text))
        return Status::notAUuid;
    try
    {
        std::basic_string<Char> terminated(text);
        ::GUID guid{};
        const Status status = statusOf(fromString(terminated.data(), guid));
        if (status == Status::ok)
            uuid = fromGuid(guid);
        return status;
    }
    catch (const std::bad_alloc&)
    {
        return Status::failed;
    }
}

template <class Char>
Status writeText(const UUID& uuid, Char* text) noexcept
{
    ::GUID guid = toGuid(uuid);
    Char* written = nullptr;
    Status status = statusOf(toString(guid, written));
    if (status != Status::ok)
        return status;
    if (std::char_traits<Char>::length(written) == UUID::textLength)
        std::copy_n(written, UUID::textLength, text);
    else
        status = Status::failed;
    freeString(written);
    return status;
}

} // namespace

Status create(UUID& uuid) noexcept
{
    ::GUID guid{};
    // RPC_S_UUID_LOCAL_ONLY (a UUID unique on this computer only) is a failure too.
    const Status status = statusOf(::UuidCreate(&guid));
    if (status == Status::ok)
        uuid = fromGuid(guid);
    return status;
}

Status read(std::string_view text, UUID& uuid) noexcept
{
    return readText(text, uuid);
}

Status read(std::wstring_view text, UUID& uuid) noexcept
{
    return readText(text, uuid);
}

Status write(const UUID& uuid, char* text) noexcept
{
    return writeText(uuid, text);
}

Status write(const UUID& uuid, wchar_t* text) noexcept
{
    return writeText(uuid, text);
}

} // namespace common::uuid_platform
