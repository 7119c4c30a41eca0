#pragma once

#include <QObject>

class QWidget;

namespace aec::host
{
class CHostServices;
} // namespace aec::host

namespace aec::desktop
{

// Puts the host's questions to the user in windows while it lives: confirmations become message
// boxes, the request for a table file a file dialog, and editing properties a properties dialog.
// Answers queued in the scripted services still come first, and once it is gone the services
// answer as they did before.
class CHostDialogs final : public QObject
{
    Q_OBJECT

public:
    // The dialogs are shown over the parent window, which must outlive this object.
    CHostDialogs(host::CHostServices& services, QWidget& parentWindow);
    ~CHostDialogs() override;
    CHostDialogs(const CHostDialogs&) = delete;
    CHostDialogs& operator=(const CHostDialogs&) = delete;

private:
    host::CHostServices& services_;
};

} // namespace aec::desktop
