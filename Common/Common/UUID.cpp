#include "Common/UUID.h"

#include "Common/Check.h"
#include "Common/UuidProvider.h"
#include "Common/UuidText.h"

#include <cerrno>
#include <ostream>
#include <sys/random.h>

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

} // namespace

UUID UUID::create()
{
    Bytes randomBytes{};
    ssize_t received = 0;
    do
        received = ::getrandom(randomBytes.data(), randomBytes.size(), 0);
    while (received < 0 && errno == EINTR);
    COMMON_CHECK(received == static_cast<ssize_t>(randomBytes.size()));
    return version4FromRandomBytes(randomBytes);
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

UUID UUID::parse(std::string_view text)
{
    const std::optional<UUID> uuid = tryParse(text);
    COMMON_PRECONDITION(uuid.has_value());
    return *uuid;
}

UUID UUID::parse(std::wstring_view text)
{
    const std::optional<UUID> uuid = tryParse(text);
    COMMON_PRECONDITION(uuid.has_value());
    return *uuid;
}

std::optional<UUID> UUID::tryParse(std::string_view text) noexcept
{
    return uuid_text::read(withoutBraces(text));
}

std::optional<UUID> UUID::tryParse(std::wstring_view text) noexcept
{
    return uuid_text::read(withoutBraces(text));
}

std::string UUID::toString() const
{
    char text[textLength];
    uuid_text::write(*this, text);
    return std::string(text, textLength);
}

std::wstring UUID::toWString() const
{
    wchar_t text[textLength];
    uuid_text::write(*this, text);
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
