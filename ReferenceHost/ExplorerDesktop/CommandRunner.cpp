#include "ExplorerDesktop/CommandRunner.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"

#include <optional>

namespace aec::desktop
{

CCommandRunner::CCommandRunner(QObject* parent) : QObject(parent) {}

CCommandRunner::~CCommandRunner() = default;

bool CCommandRunner::run(const std::function<void()>& command)
{
    std::optional<QString> failure;
    ++depth_;
    try
    {
        command();
    }
    catch (const common::EException& exception)
    {
        failure = QString::fromUtf8(exception.what());
    }
    catch (const common::EAssertionViolation& violation)
    {
        failure = tr("Internal error: %1").arg(QString::fromUtf8(violation.what()));
    }
    catch (const std::exception& exception)
    {
        failure = tr("Internal error: %1").arg(QString::fromUtf8(exception.what()));
    }
    --depth_;
    if (failure)
        Q_EMIT failed(*failure);
    if (depth_ == 0)
        Q_EMIT finished();
    return !failure;
}

} // namespace aec::desktop
