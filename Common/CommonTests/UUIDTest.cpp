#include "Common/AssertionViolation.h"
#include "Common/UUID.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace
{

using common::UUID;

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

template <class Text>
std::string parseViolation(const Text& text)
{
    try
    {
        UUID::parse(text);
    }
    catch (const common::EPreconditionViolation& violation)
    {
        return violation.what();
    }
    return "no violation";
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

    // Wide characters whose low byte is a hex digit or a hyphen must not pass as one.
    for (const auto& [position, foreign] : std::vector<std::pair<std::size_t, wchar_t>>{
             {0, L'\u0161'}, {0, L'\uff21'}, {8, L'\u012d'}, {0, -1}})
    {
        std::wstring text = widen(sampleText);
        text[position] = foreign;
        EXPECT_FALSE(UUID::tryParse(text).has_value()) << static_cast<long>(foreign);
    }

    const std::string narrowSite = parseViolation(std::string("x"));
    const std::string wideSite = parseViolation(std::wstring(L"x"));
    const std::string prefix = "Assertion violation: Common/Common/UUID.cpp(";
    EXPECT_EQ(narrowSite.rfind(prefix, 0), 0u) << narrowSite;
    EXPECT_EQ(wideSite.rfind(prefix, 0), 0u) << wideSite;
    EXPECT_NE(narrowSite, wideSite);
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

    const std::regex version4("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<UUID> created;
    for (int i = 0; i < 100; ++i)
    {
        const UUID uuid = UUID::create();
        EXPECT_FALSE(uuid.isNull());
        EXPECT_TRUE(std::regex_match(uuid.toString(), version4)) << uuid;
        created.insert(uuid);
    }
    EXPECT_EQ(created.size(), 100u);
}

} // namespace
