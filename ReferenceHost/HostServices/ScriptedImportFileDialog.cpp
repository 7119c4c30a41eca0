#include "HostServices/ScriptedImportFileDialog.h"

namespace aec::host
{

CScriptedImportFileDialog::CScriptedImportFileDialog() = default;

CScriptedImportFileDialog::~CScriptedImportFileDialog() = default;

std::wstring CScriptedImportFileDialog::askForFile() const
{
    ++askCount_;
    if (answers_.empty())
        return askCallback_ ? askCallback_() : std::wstring();
    std::wstring answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

void CScriptedImportFileDialog::queueAnswer(std::wstring path)
{
    answers_.push_back(std::move(path));
}

} // namespace aec::host
