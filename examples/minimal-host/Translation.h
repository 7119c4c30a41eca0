#pragma once

#include "aec/Translation.h"

namespace minimal_host
{

// The texts the explorer shows (menu items, the delete question, "No grouping"), in English.
class CTranslation final : public aec::ITranslation
{
public:
    std::wstring getText(int textId) const override;
    std::wstring fillIn(const std::wstring& text, const std::wstring& argument) const override;
};

} // namespace minimal_host
