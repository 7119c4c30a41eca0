#pragma once

#include "aec/ImportFileDialog.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The dialog that asks for a table file, failing where the plan says.
class CFaultyImportFileDialog final : public IImportFileDialog
{
public:
    CFaultyImportFileDialog(CFaultPlan& plan, const IImportFileDialog& inner) : plan_(plan), inner_(inner) {}

    std::wstring askForFile() const override;

private:
    CFaultPlan& plan_;
    const IImportFileDialog& inner_;
};

} // namespace aec::fault_injection
