#include "Common/FractionalIndex.h"

#include "Common/Check.h"
#include "Common/Exception.h"

#include <algorithm>
#include <bit>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using common::CFractionalIndex;
using Bytes = CFractionalIndex::Bytes;

// Order keys may draw only through next(); the call operator is a second entry point of the
// interface that they must leave alone.
class RecordingRandomDevice : public common::IRandomDevice
{
public:
    std::uint32_t operator()() override
    {
        ADD_FAILURE() << "an order key drew through operator() instead of next()";
        return 0;
    }
};

// Plays back a script of numbers, from its start again when it runs out, and counts the draws.
class ScriptedRandomDevice final : public RecordingRandomDevice
{
public:
    explicit ScriptedRandomDevice(std::vector<std::uint32_t> script) : script_(std::move(script)) {}

    std::uint32_t next() override { return script_[draws_++ % script_.size()]; }
    std::size_t draws() const { return draws_; }

private:
    std::vector<std::uint32_t> script_;
    std::size_t draws_ = 0;
};

// Pseudo-random with a fixed seed, so that a failing run can be replayed.
class SeededRandomDevice final : public RecordingRandomDevice
{
public:
    std::uint32_t next() override { return engine_(); }

private:
    std::mt19937 engine_{20240601u};
};

CFractionalIndex key(Bytes bytes)
{
    return CFractionalIndex(std::move(bytes));
}

Bytes concatenated(Bytes head, const Bytes& tail)
{
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

// Site of the violation that `action` throws, as "Assertion violation: FILE(LINE)".
template <class Violation, class Action>
std::string siteOf(Action action)
{
    try
    {
        action();
    }
    catch (const Violation& violation)
    {
        return violation.what();
    }
    ADD_FAILURE() << "the expected violation was not thrown";
    return {};
}

const std::string fractionalIndexSite = "Assertion violation: Common/Common/FractionalIndex.cpp(";

TEST(FractionalIndexTest, ComparesBytesAsUnsignedValuesWithPrefixesFirst)
{
    EXPECT_EQ(CFractionalIndex().bytes(), Bytes{0x80});
    EXPECT_EQ(CFractionalIndex().bitLength(), 1u);
    EXPECT_EQ(CFractionalIndex(), CFractionalIndex::defaultKey());

    EXPECT_LT(key({0x7F, 0xFF}), key({0x80}));
    EXPECT_LT(key({0x80}), key({0x80, 0x01}));
    EXPECT_LT(key({0x80, 0x01, 0xFF}), key({0x80, 0x02}));
    EXPECT_EQ(key({0x80, 0x01}), key({0x80, 0x01}));
    EXPECT_NE(key({0x80, 0x01}), key({0x80, 0x01, 0x01}));
    EXPECT_EQ(key({0x80, 0x01, 0x40}).bitLength(), 18u);

    EXPECT_THROW(key({}), common::EPreconditionViolation);
    EXPECT_THROW(key({0x80, 0x00}), common::EPreconditionViolation);
}

TEST(FractionalIndexTest, AfterIncrementsByteFiveAndSaltsTwoBytesTheLastNonZero)
{
    // Low bytes 0x37, 0x00, 0x00, 0x05: the two zero draws for the last byte are redrawn.
    ScriptedRandomDevice random({0x1234AB37, 0xFFFFFF00, 0x00000100, 0xCAFE0005});
    const CFractionalIndex next = CFractionalIndex::after(CFractionalIndex::defaultKey(), random);
    EXPECT_EQ(next.bytes(), (Bytes{0x80, 0, 0, 0, 0, 1, 0x37, 0x05}));
    EXPECT_EQ(next.bitLength(), 64u);
    EXPECT_EQ(random.draws(), 4u);

    ScriptedRandomDevice sevens({0x07});
    EXPECT_EQ(CFractionalIndex::after(key({0x80, 1, 2, 3, 4, 5, 0xEE, 0xEE, 0xEE}), sevens).bytes(),
              (Bytes{0x80, 1, 2, 3, 4, 6, 0x07, 0x07}));
    EXPECT_EQ(CFractionalIndex::after(key({0x80, 0, 0, 0x05, 0xFF, 0xFF, 0x11}), sevens).bytes(),
              (Bytes{0x80, 0, 0, 0x06, 0, 0, 0x07, 0x07}));
    EXPECT_EQ(CFractionalIndex::after(key({0x23, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}), sevens).bytes(),
              (Bytes{0x23, 0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0x07, 0x07}));
}

TEST(FractionalIndexTest, AfterAFullCarryBisectsTowardsOneHalf)
{
    const CFractionalIndex low = key({0x10, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF});
    ScriptedRandomDevice random({0x43, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66});
    const CFractionalIndex next = CFractionalIndex::after(low, random);
    EXPECT_EQ(next.bytes(), (Bytes{0x13, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66}));
    EXPECT_EQ(random.draws(), 7u);
    EXPECT_LT(low, next);
    EXPECT_LT(next, CFractionalIndex::defaultKey());
}

TEST(FractionalIndexTest, BetweenOneHalfAsUpperBoundIsAfter)
{
    const std::vector<std::uint32_t> script{0x5A, 0x00, 0xA5};
    ScriptedRandomDevice forBetween(script);
    ScriptedRandomDevice forAfter(script);
    const CFractionalIndex low = key({0x40, 0x01});
    EXPECT_EQ(CFractionalIndex::between(low, CFractionalIndex::defaultKey(), forBetween),
              CFractionalIndex::after(low, forAfter));
    EXPECT_EQ(forBetween.draws(), forAfter.draws());
}

struct BisectionCase
{
    const char* what;
    Bytes a;
    Bytes b;
    std::vector<std::uint32_t> script;
    Bytes expected;
};

TEST(FractionalIndexTest, BisectionBytesFollowFromTheDraws)
{
    Bytes prefix;
    for (std::uint8_t value = 1; prefix.size() < 40; value = static_cast<std::uint8_t>(value * 7 + 3))
        prefix.push_back(value);

    const std::vector<BisectionCase> cases{
        {"random bits below the lowest differing bit lift the byte, then six salt bytes follow",
         concatenated(prefix, {0x10}),
         concatenated(prefix, {0x60}),
         {0x2B, 1, 2, 3, 4, 5, 6},
         concatenated(prefix, {0x1B, 1, 2, 3, 4, 5, 6})},
        {"an unlifted byte and zero salt are followed by random bytes until one is non-zero",
         concatenated(prefix, {0x10}),
         concatenated(prefix, {0x20}),
         {0xF0, 0, 0, 0, 0, 0, 0, 0, 0x09},
         concatenated(prefix, {0x10, 0, 0, 0, 0, 0, 0, 0, 0x09})},
        {"the sixth salt byte stops the walk and the rest of the longer bound's span stays zero",
         {0x10},
         {0x20, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1},
         {0x01, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0x00, 0x07},
         {0x11, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0, 0, 0, 0, 0, 0x07}},
        {"below the lowest differing bit nothing is random, so the lower key's tail is raised",
         {0x10, 0x05, 0x07},
         {0x11},
         {0xFF, 0x04, 0x08, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36},
         {0x10, 0x05, 0x0F, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36}},
        {"bytes that both bounds share after the first difference are kept",
         {0x10, 0x00, 0x44},
         {0x30, 0x00, 0x44, 0x02},
         {0x0C, 0x5E, 0x71, 0x72, 0x73, 0x74, 0x75},
         {0x1C, 0x00, 0x44, 0x5E, 0x71, 0x72, 0x73, 0x74, 0x75}},
    };
    for (const BisectionCase& bisection : cases)
    {
        SCOPED_TRACE(bisection.what);
        ScriptedRandomDevice random(bisection.script);
        const CFractionalIndex a = key(bisection.a);
        const CFractionalIndex b = key(bisection.b);
        const CFractionalIndex middle = CFractionalIndex::between(a, b, random);
        EXPECT_EQ(middle.bytes(), bisection.expected);
        EXPECT_EQ(random.draws(), bisection.script.size());
        EXPECT_LT(a, middle);
        EXPECT_LT(middle, b);
    }
}

TEST(FractionalIndexTest, ViolationsComeFromTheBoundCheckAndTheBisectionCheck)
{
    const CFractionalIndex low = key({0x20});
    const CFractionalIndex high = key({0x30});
    SeededRandomDevice random;

    const std::string boundSite =
        siteOf<common::EPreconditionViolation>([&] { CFractionalIndex::between(high, low, random); });
    EXPECT_EQ(siteOf<common::EPreconditionViolation>([&] { CFractionalIndex::between(low, low, random); }),
              boundSite);
    EXPECT_EQ(
        siteOf<common::EPreconditionViolation>([&] { CFractionalIndex::generate(high, low, 3, random); }),
        boundSite);

    // Bytes 1 to 5 all 0xFF at or above one half: the carry cannot reach byte 0 and bisection
    // towards one half finds the lower key's byte above the upper one's.
    const std::string bisectionSite = siteOf<common::ECheckViolation>(
        [&] {
            CFractionalIndex::after(key({0x80, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}), random);
        });
    EXPECT_EQ(siteOf<common::ECheckViolation>(
                  [&] {
                      CFractionalIndex::after(key({0xC0, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}), random);
                  }),
              bisectionSite);

    EXPECT_EQ(boundSite.rfind(fractionalIndexSite, 0), 0u) << boundSite;
    EXPECT_EQ(bisectionSite.rfind(fractionalIndexSite, 0), 0u) << bisectionSite;
    EXPECT_NE(boundSite, bisectionSite);
}

Bytes randomKeyBytes(std::mt19937& engine)
{
    std::uniform_int_distribution<int> length(1, 12);
    std::uniform_int_distribution<int> byte(0, 255);
    Bytes bytes(static_cast<std::size_t>(length(engine)));
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<std::uint8_t>(byte(engine)); });
    if (bytes.back() == 0)
        bytes.back() = 1;
    return bytes;
}

void expectWellFormed(const CFractionalIndex& generated)
{
    ASSERT_FALSE(generated.bytes().empty());
    const std::uint8_t last = generated.bytes().back();
    EXPECT_NE(last, 0);
    const std::uint64_t fullBits = 8 * generated.bytes().size();
    EXPECT_LE(generated.bitLength(), fullBits);
    EXPECT_GT(generated.bitLength(), fullBits - 8);
    EXPECT_EQ(generated.bitLength() % 8 == 0, last % 2 == 1) << generated.toHex();
}

TEST(FractionalIndexTest, GeneratedKeysLieStrictlyBetweenTheirBoundsAndAreWellFormed)
{
    std::mt19937 engine(7);
    SeededRandomDevice random;
    for (int round = 0; round < 2000; ++round)
    {
        CFractionalIndex a = key(randomKeyBytes(engine));
        CFractionalIndex b = key(randomKeyBytes(engine));
        if (a == b)
            continue;
        if (b < a)
            std::swap(a, b);
        SCOPED_TRACE(a.toHex() + " .. " + b.toHex());

        const CFractionalIndex middle = CFractionalIndex::between(a, b, random);
        EXPECT_LT(a, middle);
        if (b != CFractionalIndex::defaultKey())
        {
            EXPECT_LT(middle, b);
        }
        expectWellFormed(middle);

        const CFractionalIndex next = CFractionalIndex::after(a, random);
        EXPECT_LT(a, next);
        expectWellFormed(next);

        if (HasFailure())
            return;
    }
}

TEST(FractionalIndexTest, GenerateFillsTheIntervalInIncreasingOrder)
{
    const CFractionalIndex a = key({0x20, 0x01});
    const CFractionalIndex b = key({0x20, 0x02});
    SeededRandomDevice random;
    for (const std::size_t count : {std::size_t{1}, std::size_t{3}, std::size_t{1000}})
    {
        const std::vector<CFractionalIndex> keys = CFractionalIndex::generate(a, b, count, random);
        ASSERT_EQ(keys.size(), count);
        EXPECT_LT(a, keys.front());
        EXPECT_LT(keys.back(), b);
        EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
        EXPECT_EQ(std::adjacent_find(keys.begin(), keys.end()), keys.end()) << count << " keys hold a repeat";
    }

    ScriptedRandomDevice unused({0x01});
    EXPECT_TRUE(CFractionalIndex::generate(a, b, 0, unused).empty());
    EXPECT_EQ(unused.draws(), 0u);
}

TEST(FractionalIndexTest, GenerateUpToOneHalfChainsKeysAfterEachOther)
{
    const std::vector<std::uint32_t> script{0x21, 0x00, 0x43, 0x65, 0x87};
    ScriptedRandomDevice forGenerate(script);
    ScriptedRandomDevice forChain(script);
    const CFractionalIndex a = key({0x90, 0x00, 0x00, 0x00, 0x00, 0xFE});
    const std::vector<CFractionalIndex> keys =
        CFractionalIndex::generate(a, CFractionalIndex::defaultKey(), 4, forGenerate);
    ASSERT_EQ(keys.size(), 4u);
    CFractionalIndex previous = a;
    for (const CFractionalIndex& generated : keys)
    {
        EXPECT_EQ(generated, CFractionalIndex::after(previous, forChain));
        EXPECT_LT(previous, generated);
        previous = generated;
    }
}

TEST(FractionalIndexTest, GenerateRefusesAnImpossibleCountBeforeMakingAnyKey)
{
    const std::size_t tooMany = std::vector<CFractionalIndex>().max_size() + 1;
    ScriptedRandomDevice random({0x01});
    EXPECT_THROW(CFractionalIndex::generate(key({0x10}), key({0x20}), tooMany, random), std::length_error);
    EXPECT_THROW(CFractionalIndex::generate(key({0x10}), CFractionalIndex::defaultKey(), tooMany, random),
                 std::length_error);
    EXPECT_EQ(random.draws(), 0u);
}

TEST(FractionalIndexTest, RepeatedInsertionJustAboveOneNeighbourKeepsOrder)
{
    constexpr int insertions = 100'000;
    SeededRandomDevice random;
    const CFractionalIndex neighbour = CFractionalIndex::after(CFractionalIndex::defaultKey(), random);
    CFractionalIndex upper = CFractionalIndex::after(neighbour, random);
    for (int insertion = 0; insertion < insertions; ++insertion)
    {
        CFractionalIndex inserted = CFractionalIndex::between(neighbour, upper, random);
        if (!(neighbour < inserted && inserted < upper && inserted.bytes().back() != 0))
        {
            ADD_FAILURE() << "insertion " << insertion << " gave " << inserted.toHex() << " outside "
                          << neighbour.toHex() << " .. " << upper.toHex();
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
    const CFractionalIndex original = key({0x80, 0x0A, 0xFF});
    EXPECT_EQ(original.toHex(), "800aff");
    EXPECT_EQ(CFractionalIndex::fromHex("800AFF"), original);
    EXPECT_EQ(CFractionalIndex::fromHex("800aff").bitLength(), original.bitLength());

    SeededRandomDevice random;
    const CFractionalIndex generated = CFractionalIndex::between(key({0x01}), key({0x02}), random);
    EXPECT_EQ(CFractionalIndex::fromHex(generated.toHex()), generated);

    for (const char* notAKey : {"", "8", "80g0", "8000", "80 0"})
    {
        try
        {
            CFractionalIndex::fromHex(notAKey);
            ADD_FAILURE() << '"' << notAKey << "\" was read as a key";
        }
        catch (const common::EException& error)
        {
            EXPECT_NE(std::string(error.what()).find(std::string("\"") + notAKey + '"'), std::string::npos)
                << error.what();
        }
    }
}

TEST(FractionalIndexTest, OverloadsWithoutDeviceDrawFromTheDefaultDevice)
{
    const CFractionalIndex a = key({0x30});
    const CFractionalIndex b = key({0x31});
    const CFractionalIndex middle = CFractionalIndex::between(a, b);
    EXPECT_LT(a, middle);
    EXPECT_LT(middle, b);
    EXPECT_LT(b, CFractionalIndex::after(b));
    const std::vector<CFractionalIndex> keys = CFractionalIndex::generate(a, b, 5);
    EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
    EXPECT_LT(a, keys.front());
    EXPECT_LT(keys.back(), b);
}

} // namespace
