#pragma once

#include "HostServices/Clipboard.h"
#include "HostServices/HostServicesApi.h"
#include "HostServices/PropertyContainerEditor.h"
#include "HostServices/ProxyAppGui.h"
#include "HostServices/ScriptedDialogService.h"
#include "HostServices/ScriptedImportFileDialog.h"
#include "HostServices/Translation.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/PasteDataSerializer.h"
#include "AecModel/PropertyCatalog.h"
#include "AecModel/SessionManager.h"
#include "AecModel/TableImporter.h"

namespace aec::host
{

// The application-wide services of the reference host, made in one go. The accessors from
// getClipboard to getPasteDataSerializer are, in order, the nine services that the explorer
// library's entity controller factory takes; the session manager, the value formatter and the
// property catalog are what its explorer factory and view need besides.
class HOSTSERVICES_API CHostServices
{
public:
    CHostServices();
    ~CHostServices();
    CHostServices(const CHostServices&) = delete;
    CHostServices& operator=(const CHostServices&) = delete;

    CClipboard& getClipboard() noexcept { return clipboard_; }
    CProxyAppGui& getProxyAppGui() noexcept { return proxyAppGui_; }
    const CTranslation& getTranslation() const noexcept { return translation_; }
    model::CSessionManager& getSessionManager() noexcept { return sessionManager_; }
    CScriptedImportFileDialog& getImportFileDialog() noexcept { return importFileDialog_; }
    CPropertyContainerEditor& getPropertyEditor() noexcept { return propertyEditor_; }
    CScriptedDialogService& getDialogService() noexcept { return dialogService_; }
    const model::CTableImporter& getTableImporter() const noexcept { return tableImporter_; }
    // For a host that lets the user choose how files are read and watch long imports.
    model::CTableImporter& getTableImporter() noexcept { return tableImporter_; }
    model::CPasteDataSerializer& getPasteDataSerializer() noexcept { return pasteDataSerializer_; }

    const model::CAttributeValueFormatter& getAttributeValueFormatter() const noexcept { return formatter_; }
    const model::CPropertyCatalog& getPropertyCatalog() const noexcept { return propertyCatalog_; }

private:
    CClipboard clipboard_;
    CProxyAppGui proxyAppGui_;
    CTranslation translation_;
    model::CSessionManager sessionManager_;
    CScriptedImportFileDialog importFileDialog_;
    CPropertyContainerEditor propertyEditor_;
    CScriptedDialogService dialogService_;
    model::CTableImporter tableImporter_;
    model::CPasteDataSerializer pasteDataSerializer_;
    // Reads entity names through the session manager, declared before it.
    model::CAttributeValueFormatter formatter_;
    model::CPropertyCatalog propertyCatalog_;
};

} // namespace aec::host
