#pragma once

#include <cwctype>
#include <string>

namespace benchmarks
{

// Turns the ASCII letters of the name to lower or upper case, as people type names in either; letters
// outside ASCII stay as typed, so that accented and other scripts keep their case.
inline void setAsciiCase(std::wstring& name, bool upper)
{
    for (wchar_t& character : name)
        if (character < 0x80)
            character = static_cast<wchar_t>(upper ? std::towupper(static_cast<wint_t>(character))
                                                   : std::towlower(static_cast<wint_t>(character)));
}

} // namespace benchmarks
