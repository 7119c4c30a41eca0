#pragma once

namespace aec
{
class IAttributeValueFormatter;
class IClipboard;
class IClipboardListenerRegistry;
class IGeneralPurposeDialogService;
class IGui;
class IImportFileDialog;
class IProjectExplorerGuiProvider;
class IProjectSessionManager;
class IPropertyContainerEditor;
class IStatusService;
class IProxyAppGui;
class ITitleBlockIO;
class ITranslation;
namespace serialization
{
class IProjectEntityPasteDataSessionSerializer;
} // namespace serialization
} // namespace aec

namespace aec::host
{

// The application-wide services that a session hands the explorer library when it starts: the
// nine that the entity controller factory takes, in its order, the formatter that names
// subgroups, the provider of the panel that the views are shown in, and what each view is given
// after it is made: the main GUI, the status line and the clipboard's listener registry. The view
// of each project gets the translation, session manager and clipboard of the same set, so that
// the library meets one set of services wherever it looks.
struct ApplicationServiceSet
{
    IClipboard& clipboard;
    IProxyAppGui& proxyAppGui;
    const ITranslation& translation;
    const IProjectSessionManager& sessionManager;
    const IImportFileDialog& importFileDialog;
    IPropertyContainerEditor& propertyEditor;
    const IGeneralPurposeDialogService& dialogService;
    const ITitleBlockIO& titleBlockIO;
    serialization::IProjectEntityPasteDataSessionSerializer& pasteDataSerializer;
    const IAttributeValueFormatter& formatter;
    const IProjectExplorerGuiProvider& guiProvider;
    IGui& gui;
    IStatusService& statusService;
    IClipboardListenerRegistry& clipboardListenerRegistry;
};

} // namespace aec::host
