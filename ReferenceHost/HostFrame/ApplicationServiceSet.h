#pragma once

namespace aec
{
class IAttributeValueFormatter;
class IClipboard;
class IGeneralPurposeDialogService;
class IImportFileDialog;
class IProjectSessionManager;
class IPropertyContainerEditor;
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
// nine that the entity controller factory takes, in its order, and the formatter that names
// subgroups. The view of each project gets the translation, session manager and clipboard of the
// same set, so that the library meets one set of services wherever it looks.
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
};

} // namespace aec::host
