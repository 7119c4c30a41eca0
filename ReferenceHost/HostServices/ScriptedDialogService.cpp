#include "HostServices/ScriptedDialogService.h"

namespace aec::host
{

CScriptedDialogService::CScriptedDialogService() = default;

CScriptedDialogService::~CScriptedDialogService() = default;

DialogAnswer CScriptedDialogService::ask(const std::wstring& title, const std::wstring& question,
                                         int buttonSet) const
{
    questions_.push_back(Question{title, question, buttonSet});
    if (answers_.empty())
        return askCallback_ ? askCallback_(questions_.back()) : defaultAnswer_;
    const DialogAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

void CScriptedDialogService::queueAnswer(DialogAnswer answer)
{
    answers_.push_back(answer);
}

} // namespace aec::host
