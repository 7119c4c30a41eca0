#pragma once

#include "aec/Translation.h"

#include <map>

namespace aecapp_tests
{

// Translations from a fixed table; asking for a number outside the table throws
// std::out_of_range, so a wrong text number fails the test that made it.
class TableTranslation : public aec::ITranslation
{
public:
    explicit TableTranslation(std::map<int, std::wstring> texts) : texts_(std::move(texts)) {}

    std::wstring getText(int textId) const override { return texts_.at(textId); }
    std::wstring fillIn(const std::wstring& text, const std::wstring& argument) const override;

private:
    std::map<int, std::wstring> texts_;
};

} // namespace aecapp_tests
