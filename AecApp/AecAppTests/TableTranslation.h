#pragma once

#include "aec/Translation.h"

#include <map>

namespace aecapp_tests
{

// Translations from a fixed table. A number outside the table throws std::out_of_range, so a
// wrong text number fails the test that used it.
class TableTranslation : public aec::ITranslation
{
public:
    explicit TableTranslation(std::map<int, std::wstring> texts = {}) : texts_(std::move(texts)) {}

    std::wstring getText(int textId) const override { return texts_.at(textId); }
    std::wstring fillIn(const std::wstring& text, const std::wstring& argument) const override
    {
        std::wstring filled = text;
        if (const auto placeholder = filled.find(L"{}"); placeholder != std::wstring::npos)
            filled.replace(placeholder, 2, argument);
        return filled;
    }

private:
    std::map<int, std::wstring> texts_;
};

} // namespace aecapp_tests
