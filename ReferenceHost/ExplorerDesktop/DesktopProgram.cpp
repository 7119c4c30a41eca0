#include "ExplorerDesktop/DesktopProgram.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "ExplorerDesktop/MainWindow.h"
#include "ExplorerDesktop/OpenFailureDialog.h"
#include "ExplorerShell/ShellCommandInterpreter.h"
#include "HostFrame/ExplorerSession.h"

#include <QApplication>
#include <QPixmap>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

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
        const QString message = QString::fromUtf8(failure.what());
        // Someone who started the program from a desktop sees no terminal; a picture taken
        // without anyone at the screen must not wait for a click.
        if (options_.screenshotPath.isEmpty())
            COpenFailureDialog(options_.projectPath, message).exec();
        return fail(message);
    }

    // The window comes after the script, so that the script's questions take its own answers
    // instead of opening dialogs.
    if (const std::optional<int> status = runScript(session))
        return *status;
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

std::optional<int> CDesktopProgram::runScript(host::CExplorerSession& session)
{
    if (options_.scriptPath.isEmpty())
        return std::nullopt;
    std::ifstream script(std::filesystem::path(options_.scriptPath.toStdWString()));
    if (!script)
        return fail(QString("Cannot read the script %1.").arg(options_.scriptPath));
    shell::CShellCommandInterpreter interpreter(session, out_);
    std::string line;
    for (int number = 1; std::getline(script, line); ++number)
    {
        // The interpreter has printed what went wrong; the window would show a state the script
        // did not mean to reach.
        if (!interpreter.execute(line))
            return fail(QString("The script %1 failed at line %2.").arg(options_.scriptPath).arg(number));
        if (interpreter.hasQuit())
            return 0;
    }
    return std::nullopt;
}

int CDesktopProgram::fail(const QString& message) const
{
    errors_ << "explorer-desktop: " << message.toStdString() << '\n';
    return 1;
}

} // namespace aec::desktop
