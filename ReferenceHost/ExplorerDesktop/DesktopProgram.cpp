#include "ExplorerDesktop/DesktopProgram.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "ExplorerDesktop/MainWindow.h"
#include "HostFrame/ExplorerSession.h"

#include <QApplication>
#include <QPixmap>
#include <filesystem>
#include <ostream>

namespace aec::desktop
{

CDesktopProgram::CDesktopProgram(DesktopOptions options, std::ostream& out, std::ostream& errors)
    : options_(std::move(options)), out_(out), errors_(errors)
{
}

int CDesktopProgram::run()
{
    if (options_.helpRequested)
    {
        out_ << DesktopOptions::usage().toStdString();
        return 0;
    }

    host::CExplorerSession session(options_.seed);
    try
    {
        if (options_.projectPath.isEmpty())
            session.open(model::buildSampleProject());
        else
            session.load(std::filesystem::path(options_.projectPath.toStdWString()));
    }
    catch (const common::EException& failure)
    {
        return fail(QString::fromUtf8(failure.what()));
    }

    // The window comes after the script, so that the script's questions take its own answers
    // instead of opening dialogs.
    CMainWindow window(session);
    window.setProjectPath(options_.projectPath);
    if (options_.screenshotPath.isEmpty())
    {
        window.show();
        return QApplication::exec();
    }

    window.show();
    QApplication::processEvents();
    if (!window.grab().save(options_.screenshotPath, "PNG"))
        return fail(QString("Cannot write the screenshot to %1.").arg(options_.screenshotPath));
    return 0;
}

int CDesktopProgram::fail(const QString& message) const
{
    errors_ << "explorer-desktop: " << message.toStdString() << '\n';
    return 1;
}

} // namespace aec::desktop
