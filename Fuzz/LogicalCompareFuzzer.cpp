// Orders three names made from the input with the natural comparison. It orders std::map keys, so
// it must be a strict weak ordering on every input; it also promises that case and leading zeros
// make no difference.

#include "Common/LogicalCompare.h"
#include "Support/FuzzCheck.h"
#include "Support/WideInput.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>
#include <string_view>

namespace
{

using common::compareLogical;

bool isAsciiDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

// The name with the case of every ASCII letter swapped.
std::wstring withAsciiCaseSwapped(std::wstring_view name)
{
    std::wstring swapped(name);
    for (wchar_t& character : swapped)
        if ((character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z'))
            character ^= 0x20;
    return swapped;
}

// The name with a zero put before every run of ASCII digits.
std::wstring withLeadingZeros(std::wstring_view name)
{
    std::wstring padded;
    for (std::size_t index = 0; index < name.size(); ++index)
    {
        if (isAsciiDigit(name[index]) && (index == 0 || !isAsciiDigit(name[index - 1])))
            padded += L'0';
        padded += name[index];
    }
    return padded;
}

void checkPair(std::wstring_view left, std::wstring_view right)
{
    const int order = compareLogical(left, right);
    FUZZ_CHECK(order == -1 || order == 0 || order == 1);
    FUZZ_CHECK(compareLogical(right, left) == -order);
    FUZZ_CHECK(common::LogicalLess()(left, right) == (order < 0));
    FUZZ_CHECK(common::LogicalGreater()(left, right) == (order > 0));
}

// a <= b and b <= c give a <= c, strictly when either step is strict.
void checkTransitive(std::wstring_view a, std::wstring_view b, std::wstring_view c)
{
    const int ab = compareLogical(a, b);
    const int bc = compareLogical(b, c);
    if (ab <= 0 && bc <= 0)
        FUZZ_CHECK(compareLogical(a, c) == ((ab < 0 || bc < 0) ? -1 : 0));
}

void checkNames(const std::array<std::wstring, 3>& names)
{
    for (const std::wstring& name : names)
    {
        // A copy lives elsewhere in memory: equal content, not identity, must make them equal.
        const std::wstring copy = name;
        FUZZ_CHECK(compareLogical(name, copy) == 0);
        FUZZ_CHECK(compareLogical(name, withAsciiCaseSwapped(name)) == 0);
        FUZZ_CHECK(compareLogical(name, withLeadingZeros(name)) == 0);
    }
    for (const std::wstring& left : names)
        for (const std::wstring& right : names)
        {
            checkPair(left, right);
            for (const std::wstring& third : names)
                checkTransitive(left, right, third);
        }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput(
        [&]
        {
            // Each name runs to a lone backslash; a doubled one stands for one backslash.
            FuzzedDataProvider input(data, size);
            std::array<std::wstring, 3> names;
            for (std::wstring& name : names)
                name = fuzz::widenFuzzInput(input.ConsumeRandomLengthString(size));
            checkNames(names);
        });
}
