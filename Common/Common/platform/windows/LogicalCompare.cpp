#include "Common/LogicalCompare.h"

#include <array>
#include <cstddef>
#include <new>
#include <string>

// <windows.h> comes first: the other Windows headers rely on its types.
// clang-format off
#include <windows.h>
#include <shlwapi.h>
// clang-format on

namespace common
{
namespace
{

// StrCmpLogicalW reads NUL-terminated texts. Names are short: up to a few dozen characters they are
// terminated on the stack, longer ones in an allocated copy.
constexpr std::size_t stackNameLength = 127;

class TerminatedName
{
public:
    explicit TerminatedName(std::wstring_view name)
    {
        if (name.size() <= stackNameLength)
        {
            name.copy(onStack_.data(), name.size());
            onStack_[name.size()] = L'\0';
            text_ = onStack_.data();
        }
        else
        {
            onHeap_.assign(name);
            text_ = onHeap_.c_str();
        }
    }
    TerminatedName(const TerminatedName&) = delete;
    TerminatedName& operator=(const TerminatedName&) = delete;

    const wchar_t* c_str() const noexcept { return text_; }

private:
    std::array<wchar_t, stackNameLength + 1> onStack_{};
    std::wstring onHeap_;
    const wchar_t* text_ = nullptr;
};

} // namespace

int compareLogical(std::wstring_view left, std::wstring_view right) noexcept
{
    try
    {
        const TerminatedName leftName(left);
        const TerminatedName rightName(right);
        const int order = ::StrCmpLogicalW(leftName.c_str(), rightName.c_str());
        return order < 0 ? -1 : order > 0 ? 1 : 0;
    }
    catch (const std::bad_alloc&)
    {
        // Out of memory for a very long name: the portable order still gives an answer.
        return compareLogicalPortable(left, right);
    }
}

} // namespace common
