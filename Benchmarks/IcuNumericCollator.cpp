#include "IcuNumericCollator.h"

#include <fmt/format.h>
#include <stdexcept>
#include <unicode/ustring.h>

namespace benchmarks
{
namespace
{

void throwOnFailure(UErrorCode status, const char* what)
{
    if (U_FAILURE(status))
        throw std::runtime_error(fmt::format("ICU could not {}: {}", what, u_errorName(status)));
}

} // namespace

CIcuNumericCollator::CIcuNumericCollator()
{
    UErrorCode status = U_ZERO_ERROR;
    collator_ = ucol_open("", &status);
    throwOnFailure(status, "open the root collator");
    ucol_setAttribute(collator_, UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
    ucol_setStrength(collator_, UCOL_SECONDARY);
    if (U_FAILURE(status))
    {
        ucol_close(collator_);
        throwOnFailure(status, "turn on numeric collation");
    }
}

CIcuNumericCollator::~CIcuNumericCollator()
{
    ucol_close(collator_);
}

int CIcuNumericCollator::compare(std::u16string_view left, std::u16string_view right) const noexcept
{
    return ucol_strcoll(collator_, left.data(), static_cast<int32_t>(left.size()), right.data(),
                        static_cast<int32_t>(right.size()));
}

std::u16string CIcuNumericCollator::toUtf16(std::wstring_view text)
{
    static_assert(sizeof(wchar_t) == sizeof(UChar32), "wide strings hold UTF-32");
    // Every code point takes at most two UTF-16 units.
    std::u16string converted(2 * text.size(), u'\0');
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF32(converted.data(), static_cast<int32_t>(converted.size()), &length,
                   reinterpret_cast<const UChar32*>(text.data()), static_cast<int32_t>(text.size()), &status);
    throwOnFailure(status, "convert a name to UTF-16");
    converted.resize(static_cast<std::size_t>(length));
    return converted;
}

} // namespace benchmarks
