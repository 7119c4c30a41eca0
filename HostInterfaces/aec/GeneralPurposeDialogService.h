#pragma once

#include "aec/AecApi.h"

#include <string>

namespace aec
{

// The answers a question can get.
enum class DialogAnswer
{
    Yes,
    No,
    Ok,
    Cancel,
};

// Button sets of a question.
inline constexpr int dialogButtonsYesNo = 4;

// Asks the user questions.
class AEC_INTERFACE IGeneralPurposeDialogService
{
public:
    virtual ~IGeneralPurposeDialogService() = default;

    // Asks the question with the title and button set and returns the answer.
    virtual DialogAnswer ask(const std::wstring& title, const std::wstring& question, int buttonSet) const = 0;
};

} // namespace aec
