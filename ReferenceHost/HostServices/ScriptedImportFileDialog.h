#pragma once

#include "HostServices/HostServicesApi.h"

#include "aec/ImportFileDialog.h"

#include <cstddef>
#include <deque>
#include <string>

namespace aec::host
{

// Answers the request for a table file from a queue of paths; with the queue empty it answers as a
// user who cancels, with an empty path.
class HOSTSERVICES_API CScriptedImportFileDialog final : public IImportFileDialog
{
public:
    CScriptedImportFileDialog();
    ~CScriptedImportFileDialog() override;

    std::wstring askForFile() const override;

    void queueAnswer(std::wstring path);
    // How often a file was asked for.
    std::size_t getAskCount() const noexcept { return askCount_; }

private:
    // Asking is const in the interface; the queue and the count are the script's bookkeeping.
    mutable std::deque<std::wstring> answers_;
    mutable std::size_t askCount_ = 0;
};

} // namespace aec::host
