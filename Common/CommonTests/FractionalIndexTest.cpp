#include "Common/FractionalIndex.h"

#include "Common/Check.h"
#include "Common/Exception.h"
#include "CommonTests/ViolationSite.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using common::CFractionalIndex;
using common::test::siteFile;
using common::test::violationSite;
using Bytes = CFractionalIndex::Bytes;

// Plays back a script of numbers, then goes on pseudo-randomly from a fixed seed, and counts draws.
class ScriptedRandomDevice final : public common::IRandomDevice
{
public:
    explicit ScriptedRandomDevice(std::vector<std::uint32_t> script = {}) : script_(std::move(script)) {}

    std::uint32_t next() override
    {
        const std::size_t draw = draws_++;
        return draw < script_.size() ? script_[draw] : engine_();
    }
    // Order keys must draw through next() only.
    std::uint32_t operator()() override
    {
        ADD_FAILURE() << "an order key drew through operator()";
        return 0;
    }
    std::size_t draws() const { return draws_; }

private:
    std::vector<std::uint32_t> script_;
    std::size_t draws_ = 0;
    std::mt19937 engine_{20240601u};
};

CFractionalIndex key(Bytes bytes)
{
    return CFractionalIndex(std::move(bytes));
}

void expectWellFormed(const CFractionalIndex& generated)
{
    const std::uint8_t last = generated.bytes().back();
    EXPECT_NE(last, 0) << generated.toHex();
    EXPECT_EQ(generated.bitLength() % 8 == 0, last % 2 == 1) << generated.toHex();
    EXPECT_GT(generated.bitLength() + 8, 8 * generated.bytes().size()) << generated.toHex();
}

TEST(FractionalIndexTest, ComparesBytesAsUnsignedValuesWithPrefixesFirst)
{
    EXPECT_EQ(CFractionalIndex(), CFractionalIndex::defaultKey());
    EXPECT_EQ(CFractionalIndex().bytes(), Bytes{0x80});
    EXPECT_EQ(CFractionalIndex().bitLength(), 1u);
    EXPECT_EQ(key({0x80, 0x01, 0x40}).bitLength(), 18u);

    EXPECT_LT(key({0x7F, 0xFF}), key({0x80}));
    EXPECT_LT(key({0x80}), key({0x80, 0x01}));
    EXPECT_LT(key({0x80, 0x01, 0xFF}), key({0x80, 0x02}));
    EXPECT_NE(key({0x80, 0x01}), key({0x80, 0x01, 0x01}));

    EXPECT_THROW(key({}), common::EPreconditionViolation);
    EXPECT_THROW(key({0x80, 0x00}), common::EPreconditionViolation);
}

// Keys cross into the host laid out as its own: the table of virtual functions, the bit length,
// then the bytes.
TEST(FractionalIndexTest, BitLengthPrecedesTheBytesInTheObject)
{
    const CFractionalIndex half;
    const auto* const object = reinterpret_cast<const std::byte*>(&half);
    const auto* const bytes = reinterpret_cast<const std::byte*>(&half.bytes());
    EXPECT_EQ(bytes - object, static_cast<std::ptrdiff_t>(sizeof(void*) + sizeof(std::uint64_t)));
    EXPECT_EQ(sizeof(CFractionalIndex), sizeof(void*) + sizeof(std::uint64_t) + sizeof(Bytes));
}

TEST(FractionalIndexTest, AfterIncrementsWithinSixBytesAndSaltsTwoMore)
{
    // Low bytes 0x37, 0x00, 0x00, 0x05: the two zero draws for the last byte are redrawn.
    ScriptedRandomDevice random({0x1234AB37, 0xFFFFFF00, 0x00000100, 0xCAFE0005});
    const CFractionalIndex next = CFractionalIndex::after(CFractionalIndex::defaultKey(), random);
    EXPECT_EQ(next.bytes(), (Bytes{0x80, 0, 0, 0, 0, 1, 0x37, 0x05}));
    EXPECT_EQ(next.bitLength(), 64u);
    EXPECT_EQ(random.draws(), 4u);

    ScriptedRandomDevice sevens({7, 7, 7, 7});
    EXPECT_EQ(CFractionalIndex::after(key({0x80, 1, 2, 3, 4, 5, 0xEE, 0xEE}), sevens).bytes(),
              (Bytes{0x80, 1, 2, 3, 4, 6, 7, 7}));
    EXPECT_EQ(CFractionalIndex::after(key({0x80, 0, 0, 0x05, 0xFF, 0xFF, 0x11}), sevens).bytes(),
              (Bytes{0x80, 0, 0, 0x06, 0, 0, 7, 7}));

    // Bytes 1 to 5 all 0xFF: the carry stops short of byte 0 and bisects towards one half instead.
    ScriptedRandomDevice carry({0x43, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66});
    EXPECT_EQ(CFractionalIndex::after(key({0x10, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}), carry).bytes(),
              (Bytes{0x13, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66}));
    EXPECT_EQ(carry.draws(), 7u);

    // One half as the upper bound means no upper bound at all.
    const std::vector<std::uint32_t> script{0x5A, 0x00, 0xA5};
    ScriptedRandomDevice forBetween(script);
    ScriptedRandomDevice forAfter(script);
    EXPECT_EQ(CFractionalIndex::between(key({0x40, 0x01}), CFractionalIndex::defaultKey(), forBetween),
              CFractionalIndex::after(key({0x40, 0x01}), forAfter));
}

TEST(FractionalIndexTest, BisectionBytesFollowFromTheDraws)
{
    const Bytes prefix{0x01, 0x0A, 0x49, 0xFF, 0x00, 0x7E, 0x80, 0x33, 0x02, 0xC4, 0x00, 0x00, 0x91};
    const auto withPrefix = [&](const Bytes& tail)
    {
        Bytes bytes = prefix;
        bytes.insert(bytes.end(), tail.begin(), tail.end());
        return bytes;
    };
    const auto expectBisection = [](const char* what, const Bytes& a, const Bytes& b,
                                    const std::vector<std::uint32_t>& script, const Bytes& expected)
    {
        SCOPED_TRACE(what);
        ScriptedRandomDevice random(script);
        const CFractionalIndex middle = CFractionalIndex::between(key(a), key(b), random);
        EXPECT_EQ(middle.bytes(), expected);
        EXPECT_EQ(random.draws(), script.size());
        EXPECT_LT(key(a), middle);
        EXPECT_LT(middle, key(b));
    };
    expectBisection("bits below the lowest differing bit are drawn, then six salt bytes follow",
                    withPrefix({0x10}), withPrefix({0x60}), {0x2B, 1, 2, 3, 4, 5, 6},
                    withPrefix({0x1B, 1, 2, 3, 4, 5, 6}));
    expectBisection("an unlifted byte and zero salt are followed by draws until one is non-zero",
                    withPrefix({0x10}), withPrefix({0x20}), {0xF0, 0, 0, 0, 0, 0, 0, 0, 9},
                    withPrefix({0x10, 0, 0, 0, 0, 0, 0, 0, 9}));
    expectBisection("the sixth salt byte stops the walk; the rest of the longer span stays zero", {0x10},
                    {0x20, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, {0x01, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0, 7},
                    {0x11, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0, 0, 0, 0, 0, 7});
    expectBisection("with nothing to draw below the lowest differing bit, the lower key's tail is raised",
                    {0x10, 0x05, 0x07}, {0x11}, {0xFF, 0x04, 0x08, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36},
                    {0x10, 0x05, 0x0F, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36});
    // The upper key runs on for more than a scan block past the lower one's end, and its first
    // non-zero byte there comes early in the block.
    Bytes longUpper{0x10, 0, 0, 0, 0x40};
    longUpper.resize(305, 0x01);
    Bytes longMiddle{0x10, 0, 0, 0, 0x25, 1, 2, 3, 4, 5, 6};
    longMiddle.resize(305, 0);
    longMiddle.push_back(7);
    expectBisection("the first difference past the lower key's end is the first non-zero byte of the upper",
                    {0x10}, longUpper, {0x25, 1, 2, 3, 4, 5, 6, 7}, longMiddle);
    expectBisection("bytes both bounds share after the first difference are kept", {0x10, 0x00, 0x44},
                    {0x30, 0x00, 0x44, 0x02}, {0x0C, 0x5E, 0x71, 0x72, 0x73, 0x74, 0x75},
                    {0x1C, 0x00, 0x44, 0x5E, 0x71, 0x72, 0x73, 0x74, 0x75});
}

TEST(FractionalIndexTest, ViolationsComeFromTheBoundCheckAndTheBisectionCheck)
{
    const CFractionalIndex low = key({0x20});
    const CFractionalIndex high = key({0x30});
    ScriptedRandomDevice random;
    using Between = common::EPreconditionViolation;
    const std::string boundSite =
        violationSite<Between>([&] { CFractionalIndex::between(high, low, random); });
    EXPECT_EQ(violationSite<Between>([&] { CFractionalIndex::between(low, low, random); }), boundSite);
    EXPECT_EQ(violationSite<Between>([&] { CFractionalIndex::generate(high, low, 3, random); }), boundSite);

    // At or above one half with bytes 1 to 5 all 0xFF, bisection towards one half finds the lower
    // key's byte above the upper one's.
    using Bisection = common::ECheckViolation;
    const Bytes stuck{0x80, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    const std::string bisectionSite =
        violationSite<Bisection>([&] { CFractionalIndex::after(key(stuck), random); });
    Bytes stuckHigher = stuck;
    stuckHigher.front() = 0xC0;
    EXPECT_EQ(violationSite<Bisection>([&] { CFractionalIndex::after(key(stuckHigher), random); }),
              bisectionSite);

    EXPECT_EQ(siteFile(boundSite), "Common/Common/FractionalIndex.cpp");
    EXPECT_EQ(siteFile(bisectionSite), "Common/Common/FractionalIndex.cpp");
    EXPECT_NE(boundSite, bisectionSite);
}

TEST(FractionalIndexTest, KeysBetweenRandomBoundsLieStrictlyInsideAndAreWellFormed)
{
    std::mt19937 engine(7);
    const auto randomKey = [&]
    {
        Bytes bytes(1 + engine() % 12);
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<std::uint8_t>(engine()); });
        bytes.back() |= 0x01;
        return key(bytes);
    };
    ScriptedRandomDevice random;
    for (int round = 0; round < 2000 && !HasFailure(); ++round)
    {
        const auto [a, b] = std::minmax({randomKey(), randomKey()});
        if (a == b || b == CFractionalIndex::defaultKey())
            continue;
        const CFractionalIndex middle = CFractionalIndex::between(a, b, random);
        EXPECT_TRUE(a < middle && middle < b) << a.toHex() << " < " << middle.toHex() << " < " << b.toHex();
        expectWellFormed(middle);
        const CFractionalIndex next = CFractionalIndex::after(a, random);
        EXPECT_LT(a, next);
        expectWellFormed(next);
    }
    // The overloads without a device draw from the process-wide one.
    EXPECT_LT(CFractionalIndex::between(key({0x30}), key({0x31})), key({0x31}));
    EXPECT_LT(key({0x31}), CFractionalIndex::after(key({0x31})));
}

TEST(FractionalIndexTest, GenerateFillsTheIntervalOrChainsKeysAfterA)
{
    const CFractionalIndex a = key({0x20, 0x01});
    const CFractionalIndex b = key({0x20, 0x02});
    ScriptedRandomDevice random;
    for (const std::size_t count : {1u, 3u, 1000u})
    {
        const std::vector<CFractionalIndex> keys = CFractionalIndex::generate(a, b, count, random);
        ASSERT_EQ(keys.size(), count);
        EXPECT_LT(a, keys.front());
        EXPECT_LT(keys.back(), b);
        EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end(), std::greater_equal<>()), keys.end())
            << "the " << count << " keys do not strictly increase";
    }
    EXPECT_EQ(CFractionalIndex::generate(a, b, 5).size(), 5u);

    ScriptedRandomDevice forGenerate({0x21, 0x00, 0x43});
    ScriptedRandomDevice forChain({0x21, 0x00, 0x43});
    const CFractionalIndex start = key({0x90, 0x00, 0x00, 0x00, 0x00, 0xFE});
    CFractionalIndex previous = start;
    for (const CFractionalIndex& chained :
         CFractionalIndex::generate(start, CFractionalIndex::defaultKey(), 4, forGenerate))
    {
        EXPECT_EQ(chained, CFractionalIndex::after(previous, forChain));
        previous = chained;
    }
    EXPECT_EQ(forGenerate.draws(), forChain.draws());

    // An impossible count fails before any key is made, and no count makes nothing.
    const std::size_t tooMany = std::vector<CFractionalIndex>().max_size() + 1;
    ScriptedRandomDevice unused;
    EXPECT_THROW(CFractionalIndex::generate(a, b, tooMany, unused), std::length_error);
    EXPECT_THROW(CFractionalIndex::generate(a, CFractionalIndex::defaultKey(), tooMany, unused),
                 std::length_error);
    EXPECT_TRUE(CFractionalIndex::generate(a, b, 0, unused).empty());
    EXPECT_EQ(unused.draws(), 0u);
}

TEST(FractionalIndexTest, RepeatedInsertionJustAboveOneNeighbourKeepsOrder)
{
    constexpr int insertions = 100'000;
    ScriptedRandomDevice random;
    const CFractionalIndex neighbour = CFractionalIndex::after(CFractionalIndex::defaultKey(), random);
    CFractionalIndex upper = CFractionalIndex::after(neighbour, random);
    for (int insertion = 0; insertion < insertions; ++insertion)
    {
        CFractionalIndex inserted = CFractionalIndex::between(neighbour, upper, random);
        if (!(neighbour < inserted && inserted < upper && inserted.bytes().back() != 0))
        {
            ADD_FAILURE() << "insertion " << insertion << " left its bounds: " << inserted.toHex();
            return;
        }
        upper = std::move(inserted);
    }
    // Each key lands close above the neighbour, so the shared prefix grows with every insertion,
    // but by less than a byte on average; the salt rides at the end instead of piling up.
    EXPECT_LT(upper.bytes().size(), neighbour.bytes().size() + insertions);
}

TEST(FractionalIndexTest, HexFormRoundTripsAndRejectsWhatIsNoKey)
{
    EXPECT_EQ(key({0x80, 0x0A, 0xFF}).toHex(), "800aff");
    EXPECT_EQ(CFractionalIndex::fromHex("800AFF"), key({0x80, 0x0A, 0xFF}));
    ScriptedRandomDevice random;
    const CFractionalIndex generated = CFractionalIndex::between(key({0x01}), key({0x02}), random);
    EXPECT_EQ(CFractionalIndex::fromHex(generated.toHex()), generated);

    for (const std::string notAKey : {"", "8", "80g0", "8000", "80 0"})
    {
        try
        {
            CFractionalIndex::fromHex(notAKey);
            ADD_FAILURE() << '"' << notAKey << "\" was read as a key";
        }
        catch (const common::EException& error)
        {
            EXPECT_NE(std::string(error.what()).find('"' + notAKey + '"'), std::string::npos) << error.what();
        }
    }

    // A zero byte in the text must not end the message before it says what is wrong.
    try
    {
        CFractionalIndex::fromHex(std::string_view("8\0\xff", 3));
        ADD_FAILURE() << "a text with a zero byte was read as a key";
    }
    catch (const common::EException& error)
    {
        EXPECT_STREQ(error.what(), "\"8\\x00\\xff\" is not an order key: expected pairs of hexadecimal digits, "
                                   "at least one, the last pair not \"00\"");
    }
}

} // namespace
