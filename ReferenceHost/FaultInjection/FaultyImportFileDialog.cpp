#include "FaultInjection/FaultyImportFileDialog.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

std::wstring CFaultyImportFileDialog::askForFile() const
{
    plan_.reach("IImportFileDialog::askForFile");
    return inner_.askForFile();
}

} // namespace aec::fault_injection
