// Reads the input as a UUID's text form, narrow and wide, through parse and tryParse: they must
// agree with each other and with the form's definition, and what parses prints back as the
// canonical text of the same UUID.

#include "Common/AssertionViolation.h"
#include "Common/UUID.h"
#include "Support/FuzzCheck.h"
#include "Support/WideInput.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace
{

// The definition of the form, written the plain way, character by character: 8-4-4-4-12 hex
// digits in either case, inside one pair of braces or none. Returns the lower-case form without
// braces, or nothing.
template <class Char>
std::optional<std::string> canonicalText(std::basic_string_view<Char> text)
{
    if (text.size() == common::UUID::textLength + 2 && text.front() == Char('{') && text.back() == Char('}'))
        text = text.substr(1, common::UUID::textLength);
    if (text.size() != common::UUID::textLength)
        return std::nullopt;
    std::string canonical;
    for (std::size_t index = 0; index < text.size(); ++index)
    {
        const auto code = static_cast<std::uint32_t>(text[index]);
        const bool hyphenPlace = index == 8 || index == 13 || index == 18 || index == 23;
        if (hyphenPlace)
        {
            if (code != '-')
                return std::nullopt;
            canonical += '-';
        }
        else if (code >= '0' && code <= '9')
            canonical += static_cast<char>(code);
        else if ((code >= 'a' && code <= 'f') || (code >= 'A' && code <= 'F'))
            canonical += static_cast<char>(code | 0x20);
        else
            return std::nullopt;
    }
    return canonical;
}

bool violatedInUuidSource(const common::EPreconditionViolation& violation)
{
    return std::string_view(violation.what()).find("Common/Common/UUID.cpp(") != std::string_view::npos;
}

template <class Char>
void checkText(std::basic_string_view<Char> text)
{
    const std::optional<std::string> expected = canonicalText(text);
    const std::optional<common::UUID> tried = common::UUID::tryParse(text);
    FUZZ_CHECK(tried.has_value() == expected.has_value());

    std::optional<common::UUID> parsed;
    try
    {
        parsed = common::UUID::parse(text);
    }
    catch (const common::EPreconditionViolation& violation)
    {
        FUZZ_CHECK(violatedInUuidSource(violation));
    }
    FUZZ_CHECK(parsed == tried);
    if (!parsed)
        return;

    const std::string printed = parsed->toString();
    const std::wstring printedWide = parsed->toWString();
    FUZZ_CHECK(printed == *expected);
    FUZZ_CHECK(std::equal(printed.begin(), printed.end(), printedWide.begin(), printedWide.end()));
    FUZZ_CHECK(common::UUID::parse(std::string_view(printed)) == *parsed);
    FUZZ_CHECK(common::UUID::parse(std::wstring_view(printedWide)) == *parsed);
    FUZZ_CHECK(common::UUID::parse(std::string_view("{" + printed + "}")) == *parsed);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput(
        [&]
        {
            const std::string_view narrow(reinterpret_cast<const char*>(data), size);
            checkText(narrow);
            // The same bytes widened one for one, and decoded as UTF-8 with raw code units: wide
            // code units outside ASCII must never read as digits.
            const std::wstring widened(narrow.begin(), narrow.end());
            checkText(std::wstring_view(widened));
            checkText(std::wstring_view(fuzz::widenFuzzInput(narrow)));
        });
}
