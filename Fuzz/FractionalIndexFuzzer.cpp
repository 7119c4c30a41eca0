// Makes order keys from bytes and places new keys between, after and among them, with random bytes
// that the input chooses. Every key made must keep the invariants and lie where it was asked for;
// the only failures allowed are the violations that the rules of each operation name.

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "Common/FractionalIndex.h"
#include "Support/FuzzCheck.h"
#include "Support/FuzzRandomDevice.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using common::CFractionalIndex;
using Bytes = CFractionalIndex::Bytes;

constexpr std::string_view checkFile = "Common/Common/FractionalIndex.cpp(";
// Enough keys to reach every level of the bisection's work stack a few times over.
constexpr std::size_t maximumCount = 64;

enum class Operation : std::uint8_t
{
    Between,
    After,
    Generate,
    InsertRepeatedly,
    ReadHex,
};

template <class Violation>
bool raisedHere(const Violation& violation)
{
    return std::string_view(violation.what()).find(checkFile) != std::string_view::npos;
}

void checkInvariants(const CFractionalIndex& key)
{
    const Bytes& bytes = key.bytes();
    FUZZ_CHECK(!bytes.empty() && bytes.back() != 0);
    FUZZ_CHECK(key.bitLength() ==
               8 * bytes.size() - static_cast<std::size_t>(std::countr_zero(bytes.back())));
}

// A key from stored bytes: only empty bytes or a zero last byte are refused.
std::optional<CFractionalIndex> keyFrom(const std::string& text)
{
    Bytes bytes(text.begin(), text.end());
    const bool acceptable = !bytes.empty() && bytes.back() != 0;
    try
    {
        CFractionalIndex key(std::move(bytes));
        FUZZ_CHECK(acceptable);
        checkInvariants(key);
        return key;
    }
    catch (const common::EPreconditionViolation& violation)
    {
        FUZZ_CHECK(!acceptable && raisedHere(violation));
        return std::nullopt;
    }
}

// after() cannot carry into byte 0: with bytes 1 to 5 all 0xFF it bisects towards one half, which
// fails for a key at or above one half.
bool afterIsBlocked(const CFractionalIndex& key)
{
    const Bytes& bytes = key.bytes();
    return bytes.size() >= 6 &&
           std::all_of(bytes.begin() + 1, bytes.begin() + 6,
                       [](std::uint8_t byte) { return byte == 0xFF; }) &&
           key >= CFractionalIndex::defaultKey();
}

std::optional<CFractionalIndex> checkedAfter(const CFractionalIndex& a, common::IRandomDevice& random)
{
    try
    {
        CFractionalIndex next = CFractionalIndex::after(a, random);
        FUZZ_CHECK(!afterIsBlocked(a));
        checkInvariants(next);
        FUZZ_CHECK(a < next);
        return next;
    }
    catch (const common::ECheckViolation& violation)
    {
        FUZZ_CHECK(afterIsBlocked(a) && raisedHere(violation));
        return std::nullopt;
    }
}

// A key between a and b. The one-half key as b stands for no upper bound: the key is then the one
// that after(a) makes from the same random bytes.
std::optional<CFractionalIndex> checkedBetween(const CFractionalIndex& a, const CFractionalIndex& b,
                                               fuzz::CFuzzRandomDevice& random)
{
    const bool ordered = a < b;
    const bool unbounded = b == CFractionalIndex::defaultKey();
    std::optional<CFractionalIndex> keyAfter;
    if (ordered && unbounded)
    {
        fuzz::CFuzzRandomDevice sameRandom = random;
        keyAfter = checkedAfter(a, sameRandom);
    }
    try
    {
        CFractionalIndex middle = CFractionalIndex::between(a, b, random);
        FUZZ_CHECK(ordered);
        checkInvariants(middle);
        FUZZ_CHECK(a < middle);
        if (unbounded)
            FUZZ_CHECK(keyAfter && middle == *keyAfter);
        else
            FUZZ_CHECK(middle < b);
        return middle;
    }
    catch (const common::EPreconditionViolation& violation)
    {
        FUZZ_CHECK(!ordered && raisedHere(violation));
        return std::nullopt;
    }
}

void checkGenerate(const CFractionalIndex& a, const CFractionalIndex& b, std::size_t count,
                   std::span<const std::uint8_t> randomBytes)
{
    fuzz::CFuzzRandomDevice random(randomBytes);
    if (b == CFractionalIndex::defaultKey())
    {
        // Keys after a, each after the one before: the same keys, from the same random bytes, as
        // after() called in turn.
        fuzz::CFuzzRandomDevice sameRandom(randomBytes);
        std::vector<CFractionalIndex> expected;
        const CFractionalIndex* previous = &a;
        std::optional<CFractionalIndex> next;
        while (expected.size() < count && (next = checkedAfter(*previous, sameRandom)))
            previous = &expected.emplace_back(*next);
        try
        {
            FUZZ_CHECK(CFractionalIndex::generate(a, b, count, random) == expected);
        }
        catch (const common::ECheckViolation& violation)
        {
            FUZZ_CHECK(expected.size() < count && raisedHere(violation));
        }
        return;
    }
    try
    {
        const std::vector<CFractionalIndex> keys = CFractionalIndex::generate(a, b, count, random);
        FUZZ_CHECK(keys.size() == count);
        FUZZ_CHECK(count == 0 || a < b);
        for (std::size_t index = 0; index < keys.size(); ++index)
        {
            checkInvariants(keys[index]);
            FUZZ_CHECK((index == 0 ? a : keys[index - 1]) < keys[index]);
        }
        FUZZ_CHECK(keys.empty() || keys.back() < b);
    }
    catch (const common::EPreconditionViolation& violation)
    {
        FUZZ_CHECK(count > 0 && !(a < b) && raisedHere(violation));
    }
}

// Insertion again and again right above one neighbour, which makes the long shared prefixes that
// the bisection has to scan.
void checkRepeatedInsertion(const CFractionalIndex& a, const CFractionalIndex& b, std::size_t count,
                            fuzz::CFuzzRandomDevice& random)
{
    CFractionalIndex upper = b;
    for (std::size_t made = 0; made < count; ++made)
    {
        const std::optional<CFractionalIndex> middle = checkedBetween(a, upper, random);
        if (!middle || upper == CFractionalIndex::defaultKey())
            return;
        upper = *middle;
    }
}

bool isHexDigit(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

void checkHex(const std::string& text)
{
    const bool readable = !text.empty() && text.size() % 2 == 0 &&
                          std::all_of(text.begin(), text.end(), isHexDigit) &&
                          text.substr(text.size() - 2) != "00";
    try
    {
        const CFractionalIndex key = CFractionalIndex::fromHex(text);
        FUZZ_CHECK(readable);
        checkInvariants(key);
        std::string lower = text;
        std::transform(lower.begin(), lower.end(), lower.begin(),
                       [](char character)
                       { return static_cast<char>(std::tolower(static_cast<unsigned char>(character))); });
        FUZZ_CHECK(key.toHex() == lower);
        FUZZ_CHECK(CFractionalIndex::fromHex(key.toHex()) == key);
    }
    catch (const common::EException& error)
    {
        FUZZ_CHECK(!readable);
        FUZZ_CHECK(std::string_view(error.what()).find("is not an order key") != std::string_view::npos);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput(
        [&]
        {
            FuzzedDataProvider input(data, size);
            const auto operation = static_cast<Operation>(input.ConsumeIntegralInRange<std::uint8_t>(0, 4));
            const std::size_t count = input.ConsumeIntegralInRange<std::size_t>(0, maximumCount);
            const std::string first = input.ConsumeRandomLengthString(size);
            if (operation == Operation::ReadHex)
            {
                checkHex(first);
                return;
            }
            const std::string second = input.ConsumeRandomLengthString(size);
            const std::vector<std::uint8_t> randomBytes = input.ConsumeRemainingBytes<std::uint8_t>();
            const std::optional<CFractionalIndex> a = keyFrom(first);
            // An empty second text stands for the one-half key, the marker of no upper bound.
            const std::optional<CFractionalIndex> b =
                second.empty() ? CFractionalIndex::defaultKey() : keyFrom(second);
            if (!a || !b)
                return;

            fuzz::CFuzzRandomDevice random(randomBytes);
            switch (operation)
            {
            case Operation::Between:
                checkedBetween(*a, *b, random);
                break;
            case Operation::After:
                checkedAfter(*a, random);
                break;
            case Operation::Generate:
                checkGenerate(*a, *b, count, randomBytes);
                break;
            case Operation::InsertRepeatedly:
                checkRepeatedInsertion(*a, *b, count, random);
                break;
            case Operation::ReadHex:
                break;
            }
        });
}
