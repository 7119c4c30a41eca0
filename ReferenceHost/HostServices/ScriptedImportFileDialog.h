#pragma once

#include "HostServices/HostServicesApi.h"

#include "aec/ImportFileDialog.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>

namespace aec::host
{

// Answers the request for a table file from a queue of paths; with the queue empty it asks the
// callback that a host with windows plugs in, and without one it answers as a user who cancels,
// with an empty path.
class HOSTSERVICES_API CScriptedImportFileDialog final : public IImportFileDialog
{
public:
    using AskCallback = std::function<std::wstring()>;

    CScriptedImportFileDialog();
    ~CScriptedImportFileDialog() override;

    std::wstring askForFile() const override;

    void queueAnswer(std::wstring path);
    // Asked when the queue is empty; it returns the chosen path, or an empty one for a cancel.
    void setAskCallback(AskCallback callback) { askCallback_ = std::move(callback); }
    // How often a file was asked for.
    std::size_t getAskCount() const noexcept { return askCount_; }

private:
    // Asking is const in the interface; the queue and the count are the script's bookkeeping.
    mutable std::deque<std::wstring> answers_;
    mutable std::size_t askCount_ = 0;
    AskCallback askCallback_;
};

} // namespace aec::host
