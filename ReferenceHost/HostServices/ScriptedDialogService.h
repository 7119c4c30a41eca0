#pragma once

#include "HostServices/HostServicesApi.h"

#include "aec/GeneralPurposeDialogService.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace aec::host
{

// Answers questions from a script instead of a window, for hosts without dialogs (the terminal
// host, tests): each question takes the next queued answer, or the default answer once the queue
// is empty. Every question asked is kept, so that the host can show it and a test can check it.
// The default answer is No, so that an unscripted question never confirms a destructive change.
// A host with windows plugs in an ask callback that puts the question to the user; queued answers
// still come first, so that a script can run in a host with windows too.
class HOSTSERVICES_API CScriptedDialogService final : public IGeneralPurposeDialogService
{
public:
    struct Question
    {
        std::wstring title;
        std::wstring text;
        int buttonSet;

        friend bool operator==(const Question&, const Question&) = default;
    };
    using AskCallback = std::function<DialogAnswer(const Question& question)>;

    CScriptedDialogService();
    ~CScriptedDialogService() override;

    DialogAnswer ask(const std::wstring& title, const std::wstring& question, int buttonSet) const override;

    void queueAnswer(DialogAnswer answer);
    void setDefaultAnswer(DialogAnswer answer) noexcept { defaultAnswer_ = answer; }
    // Answers the questions that find the queue empty; an empty callback restores the default answer.
    void setAskCallback(AskCallback callback) { askCallback_ = std::move(callback); }
    // The questions asked so far, oldest first.
    const std::vector<Question>& getQuestions() const noexcept { return questions_; }
    std::size_t getPendingAnswerCount() const noexcept { return answers_.size(); }

private:
    // Asking is const in the interface, since to its callers a question changes nothing; the script
    // and the record are this service's own bookkeeping.
    mutable std::deque<DialogAnswer> answers_;
    mutable std::vector<Question> questions_;
    DialogAnswer defaultAnswer_ = DialogAnswer::No;
    AskCallback askCallback_;
};

} // namespace aec::host
