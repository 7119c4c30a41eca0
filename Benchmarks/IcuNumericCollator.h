#pragma once

#include <string>
#include <string_view>
#include <unicode/ucol.h>

namespace benchmarks
{

// ICU's root collator set up the way a natural sort is usually asked of it: numeric collation on
// (digit runs compare by value), secondary strength (case ignored, accents count). It compares
// UTF-16 text, so callers convert their names once with toUtf16 rather than on every comparison.
class CIcuNumericCollator
{
public:
    // Throws std::runtime_error when ICU cannot open the collator.
    CIcuNumericCollator();
    ~CIcuNumericCollator();
    CIcuNumericCollator(const CIcuNumericCollator&) = delete;
    CIcuNumericCollator& operator=(const CIcuNumericCollator&) = delete;

    // Negative, zero or positive as `left` sorts before, with or after `right`.
    int compare(std::u16string_view left, std::u16string_view right) const noexcept;

    static std::u16string toUtf16(std::wstring_view text);

private:
    UCollator* collator_;
};

// Ascending collation order, for ordered containers.
struct IcuNumericLess
{
    const CIcuNumericCollator* collator;

    bool operator()(std::u16string_view left, std::u16string_view right) const noexcept
    {
        return collator->compare(left, right) < 0;
    }
};

} // namespace benchmarks
