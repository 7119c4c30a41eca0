#include "TableTranslation.h"

namespace aecapp_tests
{

std::wstring TableTranslation::fillIn(const std::wstring& text, const std::wstring& argument) const
{
    std::wstring filled = text;
    if (const auto placeholder = filled.find(L"{}"); placeholder != std::wstring::npos)
        filled.replace(placeholder, 2, argument);
    return filled;
}

} // namespace aecapp_tests
