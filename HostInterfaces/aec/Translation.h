#pragma once

#include "aec/AecApi.h"

#include <string>

namespace aec
{

// The host's translation tables: texts by number in the user's language.
class AEC_INTERFACE ITranslation
{
public:
    virtual ~ITranslation() = default;

    // The text with the number.
    virtual std::wstring getText(int textId) const = 0;
    // The text with its placeholder "{}" replaced by the argument.
    virtual std::wstring fillIn(const std::wstring& text, const std::wstring& argument) const = 0;
};

} // namespace aec
