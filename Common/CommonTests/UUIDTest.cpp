#include "Common/AssertionViolation.h"
#include "Common/UUID.h"
#include "CommonTests/ViolationSite.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace
{

using common::UUID;
using common::test::siteFile;
using common::test::violationSite;

const std::string sampleText = "c5db39aa-0973-4262-884a-61494f79c71b";

std::wstring widen(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}

std::string upper(std::string text)
{
    for (char& character : text)
        character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    return text;
}

// The hash recomputed from the text itself, byte by byte in the order the text shows them.
std::uint64_t hashOfText(const std::string& text)
{
    std::uint64_t seed = 0;
    for (std::size_t i = 0; i + 1 < text.size(); i += text[i] == '-' ? 1 : 2)
        if (text[i] != '-')
            seed ^= std::stoul(text.substr(i, 2), nullptr, 16) + 0x9e3779b9u + (seed << 6) + (seed >> 2);
    return seed;
}

TEST(UUIDTest, TextRoundTripsInBothWidthsCasesAndWithBraces)
{
    constexpr UUID sample =
        UUID::fromFields(0xc5db39aa, 0x0973, 0x4262, {0x88, 0x4a, 0x61, 0x49, 0x4f, 0x79, 0xc7, 0x1b});
    EXPECT_EQ(sample.bytes(), (UUID::Bytes{0xaa, 0x39, 0xdb, 0xc5, 0x73, 0x09, 0x62, 0x42, 0x88, 0x4a, 0x61,
                                           0x49, 0x4f, 0x79, 0xc7, 0x1b}));
    for (const std::string& text :
         {sampleText, upper(sampleText), "{" + upper(sampleText) + "}", "{" + sampleText + "}"})
    {
        EXPECT_EQ(UUID::parse(text), sample) << text;
        EXPECT_EQ(UUID::parse(widen(text)), sample) << text;
        EXPECT_EQ(UUID::tryParse(widen(text)), sample) << text;
    }
    EXPECT_EQ(sample.toString(), sampleText);
    EXPECT_EQ(sample.toWString(), widen(sampleText));

    // Every digit value in every position survives the trip.
    const std::string allDigits = "01234567-89ab-cdef-fedc-ba9876543210";
    EXPECT_EQ(UUID::parse(upper(allDigits)).toString(), allDigits);
    EXPECT_EQ(UUID::parse(widen(allDigits)).toWString(), widen(allDigits));
}

TEST(UUIDTest, TextThatIsNotAUuidIsRejected)
{
    std::string withNul = sampleText;
    withNul[20] = '\0';
    for (const std::string& text :
         {std::string(), std::string("{"), std::string("{}"), "{" + sampleText, sampleText + "}",
          "{{" + sampleText + "}}", " " + sampleText, sampleText.substr(0, 35), sampleText + "0",
          "g" + sampleText.substr(1), std::string("c5db39a-a0973-4262-884a-61494f79c71b"),
          std::string("c5db39aa00973042620884a061494f79c71b"), withNul, sampleText.substr(0, 35) + "\xe1"})
    {
        EXPECT_FALSE(UUID::tryParse(text).has_value()) << text;
        EXPECT_FALSE(UUID::tryParse(widen(text)).has_value()) << text;
        EXPECT_THROW(UUID::parse(text), common::EPreconditionViolation) << text;
        EXPECT_THROW(UUID::parse(widen(text)), common::EPreconditionViolation) << text;
    }

    using Violation = common::EPreconditionViolation;
    const std::string narrowSite = violationSite<Violation>([] { UUID::parse(std::string("x")); });
    const std::string wideSite = violationSite<Violation>([] { UUID::parse(std::wstring(L"x")); });
    EXPECT_EQ(siteFile(narrowSite), "Common/Common/UUID.cpp");
    EXPECT_EQ(siteFile(wideSite), "Common/Common/UUID.cpp");
    EXPECT_NE(narrowSite, wideSite);
}

// Every character code in every place, against the plain rule: a hyphen where the layout has one,
// otherwise an ASCII hex digit of either case, which then reads back in lower case.
TEST(UUIDTest, EachCharacterIsJudgedAndReadOnItsOwn)
{
    for (std::size_t position = 0; position < sampleText.size(); ++position)
        for (int code = -1; code < 0x200; ++code)
        {
            const bool isAscii = code >= 0 && code < 0x80;
            const bool fits = isAscii && (sampleText[position] == '-' ? code == '-' : std::isxdigit(code) != 0);
            std::string expected = sampleText;
            expected[position] = static_cast<char>(std::tolower(code));

            std::wstring wide = widen(sampleText);
            wide[position] = static_cast<wchar_t>(code);
            const std::optional<UUID> fromWide = UUID::tryParse(wide);
            ASSERT_EQ(fromWide.has_value(), fits) << "wide character " << code << " at " << position;
            if (fits)
            {
                ASSERT_EQ(fromWide->toString(), expected);
            }

            if (code < 0 || code > 0xff)
                continue;
            std::string narrow = sampleText;
            narrow[position] = static_cast<char>(code);
            const std::optional<UUID> fromNarrow = UUID::tryParse(narrow);
            ASSERT_EQ(fromNarrow.has_value(), fits) << "character " << code << " at " << position;
            if (fits)
            {
                ASSERT_EQ(fromNarrow->toString(), expected);
            }
        }
}

TEST(UUIDTest, OrderFollowsStorageBytesWhileHashFollowsTextOrder)
{
    const UUID first(UUID::Bytes{0x01, 0, 0, 0x02});
    const UUID second(UUID::Bytes{0x02, 0, 0, 0x01});
    EXPECT_LT(first, second);
    EXPECT_GT(first.toString(), second.toString());
    EXPECT_EQ(first.hash(), hashOfText(first.toString()));
    EXPECT_EQ(second.hash(), hashOfText(second.toString()));
    EXPECT_LT(UUID(UUID::Bytes{0x7f}), UUID(UUID::Bytes{0x80})) << "bytes compare as unsigned";
    // The first eight bytes decide before the last eight, and each half byte by byte in order.
    const UUID lateDifference(UUID::Bytes{5, 5, 5, 5, 5, 5, 5, 5, 0, 0, 0, 0, 0, 0, 0, 0xff});
    EXPECT_LT(lateDifference, UUID(UUID::Bytes{5, 5, 5, 5, 5, 5, 5, 5, 0, 0, 0, 0, 0, 0, 1, 0}));
    EXPECT_GT(lateDifference, UUID(UUID::Bytes{5, 5, 5, 5, 5, 5, 5, 4, 0xff, 0xff}));
    EXPECT_LT(UUID(UUID::Bytes{0, 0, 0, 0, 0, 0, 0, 0xff}), UUID(UUID::Bytes{0, 0, 0, 0, 0, 0, 1, 0}));
    EXPECT_EQ(lateDifference <=> UUID(lateDifference.bytes()), std::strong_ordering::equal);
    static_assert(UUID(UUID::Bytes{1}) > UUID(UUID::Bytes{0, 0xff}), "the same order when constant");

    const UUID sample = UUID::parse(sampleText);
    EXPECT_EQ(std::hash<UUID>{}(sample), hashOfText(sampleText));
    EXPECT_EQ(common::keyFromUuid(sample), static_cast<std::int32_t>(hashOfText(sampleText) & 0x7fffffff));
    EXPECT_EQ(common::keyFromUuid(UUID::nil()), 1);
}

TEST(UUIDTest, OnlyTheAllZeroUuidIsNullAndCreatedOnesAreDistinctVersion4)
{
    EXPECT_TRUE(UUID::parse("{00000000-0000-0000-0000-000000000000}").isNull());
    EXPECT_EQ(UUID::nil(), UUID());
    EXPECT_FALSE(UUID(UUID::Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}).isNull());

    std::set<UUID> created;
    for (int i = 0; i < 100; ++i)
    {
        const UUID uuid = UUID::create();
        EXPECT_FALSE(uuid.isNull());
        // The version digit and the variant digit of an RFC 4122 random UUID.
        const std::string text = uuid.toString();
        EXPECT_TRUE(text[14] == '4' && std::string("89ab").find(text[19]) != std::string::npos) << text;
        created.insert(uuid);
    }
    EXPECT_EQ(created.size(), 100u);
}

} // namespace
