#pragma once

#include "aec/ClipboardListener.h"

#include <QObject>
#include <QString>

class QClipboard;

namespace aec::host
{
class CClipboard;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;

// Joins the host's clipboard, which the explorer copies to and pastes from, with the desktop's.
// Entities copied in the explorer go to the desktop's clipboard under the program's own MIME type,
// with their names as plain text for other programs; entities that another window of the program
// put there come into the host's clipboard, so that they can be pasted here. Anything else on the
// desktop's clipboard empties the host's, since it holds nothing the explorer can paste.
class CSystemClipboardBridge final : public QObject, private IClipboardListener
{
    Q_OBJECT

public:
    static constexpr const char* mimeType = "application/x-explorer-desktop.project-entities";

    // Takes what the desktop's clipboard holds now. Everything must outlive the bridge.
    CSystemClipboardBridge(host::CClipboard& clipboard, QClipboard& system, CCommandRunner& runner,
                           QObject* parent = nullptr);
    ~CSystemClipboardBridge() override;

    // The entities' names in the clipboard's data, one a line; empty for data that does not read.
    static QString namesOf(const std::wstring& data);

private:
    void clipboardChanged(const IClipboard& clipboard) override;
    void takeSystemContent();

    host::CClipboard& clipboard_;
    QClipboard& system_;
    CCommandRunner& runner_;
};

} // namespace aec::desktop
