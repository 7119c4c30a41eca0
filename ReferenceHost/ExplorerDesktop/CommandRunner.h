#pragma once

#include <QObject>
#include <QString>
#include <functional>

namespace aec::desktop
{

// Runs what the user asked for and turns a failure into a message for the user. Qt's event loop
// must not see exceptions, and every failure of the host's services rolls the project back, so a
// failed command is over once its message is shown.
//
// Run-time failures (common::EException) carry a message a user can act on and are passed on as
// they are; a broken contract or any other exception is reported as an internal error with what
// it says.
class CCommandRunner final : public QObject
{
    Q_OBJECT

public:
    explicit CCommandRunner(QObject* parent = nullptr);
    ~CCommandRunner() override;

    // True when the command ran through. Commands may run commands; `finished` comes once, when
    // the outermost one is over.
    bool run(const std::function<void()>& command);

Q_SIGNALS:
    void failed(const QString& message);
    void finished();

private:
    int depth_ = 0;
};

} // namespace aec::desktop
