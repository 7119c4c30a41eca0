#pragma once

#include "aec/GeneralPurposeDialogService.h"
#include "aec/ImportFileDialog.h"
#include "aec/PropertyContainerEditor.h"
#include "aec/TitleBlockIO.h"

namespace minimal_host
{

// The dialogs the explorer opens, on the console and answered without waiting for anyone: every
// question gets "yes", and the user cancels the choice of a table file to import. This host has no
// property editor and imports no tables.
class CConsoleDialogs final : public aec::IGeneralPurposeDialogService,
                              public aec::IImportFileDialog,
                              public aec::IPropertyContainerEditor,
                              public aec::ITitleBlockIO
{
public:
    aec::DialogAnswer ask(const std::wstring& title, const std::wstring& question,
                          int buttonSet) const override;
    std::wstring askForFile() const override;
    void edit(aec::IPropertyContextOwner& owner, const aec::EntityIdSet& entities) override;
    aec::EntityId importTable(aec::IProject& project, const std::filesystem::path& file) const override;
};

} // namespace minimal_host
