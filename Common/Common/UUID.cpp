#include "Common/UUID.h"

#include "Common/Check.h"
#include "Common/UuidPlatform.h"
#include "Common/UuidProvider.h"

#include <ostream>

namespace common
{
namespace
{

// "{...}" stands for "..." only when both braces are there; a lone brace stays and fails the read.
template <class Char>
std::basic_string_view<Char> withoutBraces(std::basic_string_view<Char> text) noexcept
{
    if (!text.empty() && text.front() == Char('{') && text.back() == Char('}'))
        return text.substr(1, text.size() - 2);
    return text;
}

template <class Char>
std::optional<UUID> readWithoutBraces(std::basic_string_view<Char> text) noexcept
{
    UUID uuid;
    if (uuid_platform::read(withoutBraces(text), uuid) != uuid_platform::Status::ok)
        return std::nullopt;
    return uuid;
}

} // namespace

UUID UUID::create()
{
    UUID uuid;
    // Even a UUID unique to this computer only is a failure: identifiers travel between projects.
    COMMON_CHECK(uuid_platform::create(uuid) == uuid_platform::Status::ok);
    return uuid;
}

UUID UUID::generate()
{
    const std::shared_ptr<IUuidProvider> provider = installedUuidProvider();
    if (!provider)
        return create();

    // Hosts may interpret the text; this system never has anything to say in it.
    const UUID uuid = provider->generate(std::string());
    if (const std::shared_ptr<std::vector<UUID>> journal = installedUuidJournal())
        journal->push_back(uuid);
    return uuid;
}

// The narrow parse rejects only what the platform calls no UUID text, the wide one every failure:
// the two platform functions differ in what else they may report, and so do the two parses.
UUID UUID::parse(std::string_view text)
{
    UUID uuid;
    COMMON_PRECONDITION(uuid_platform::read(withoutBraces(text), uuid) != uuid_platform::Status::notAUuid);
    return uuid;
}

UUID UUID::parse(std::wstring_view text)
{
    UUID uuid;
    COMMON_PRECONDITION(uuid_platform::read(withoutBraces(text), uuid) == uuid_platform::Status::ok);
    return uuid;
}

std::optional<UUID> UUID::tryParse(std::string_view text) noexcept
{
    return readWithoutBraces(text);
}

std::optional<UUID> UUID::tryParse(std::wstring_view text) noexcept
{
    return readWithoutBraces(text);
}

std::string UUID::toString() const
{
    char text[textLength];
    COMMON_CHECK(uuid_platform::write(*this, text) == uuid_platform::Status::ok);
    return std::string(text, textLength);
}

std::wstring UUID::toWString() const
{
    wchar_t text[textLength];
    COMMON_CHECK(uuid_platform::write(*this, text) == uuid_platform::Status::ok);
    return std::wstring(text, textLength);
}

const UUID& UUID::nil() noexcept
{
    static constexpr UUID nilUuid;
    return nilUuid;
}

std::ostream& operator<<(std::ostream& stream, const UUID& uuid)
{
    return stream << uuid.toString();
}

} // namespace common
