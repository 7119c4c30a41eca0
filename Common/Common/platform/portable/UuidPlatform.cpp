#include "Common/UuidPlatform.h"

#include "Common/UuidText.h"

#include <cerrno>
#include <sys/random.h>

// Without the RPC runtime: version-4 UUIDs from the kernel's random source, and the text form
// read and written by libCommon's own fast routines.

namespace common::uuid_platform
{
namespace
{

template <class Char>
Status readText(std::basic_string_view<Char> text, UUID& uuid) noexcept
{
    const std::optional<UUID> read = uuid_text::read(text);
    if (!read)
        return Status::notAUuid;
    uuid = *read;
    return Status::ok;
}

} // namespace

Status create(UUID& uuid) noexcept
{
    UUID::Bytes randomBytes{};
    ssize_t received = 0;
    do
        received = ::getrandom(randomBytes.data(), randomBytes.size(), 0);
    while (received < 0 && errno == EINTR);
    if (received != static_cast<ssize_t>(randomBytes.size()))
        return Status::failed;
    uuid = UUID::version4FromRandomBytes(randomBytes);
    return Status::ok;
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
    uuid_text::write(uuid, text);
    return Status::ok;
}

Status write(const UUID& uuid, wchar_t* text) noexcept
{
    uuid_text::write(uuid, text);
    return Status::ok;
}

} // namespace common::uuid_platform
