#include "ExplorerShell/ShellCommandInterpreter.h"

#include "AecModel/Project.h"
#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/ContextMenuCommands.h"
#include "ExplorerShell/EntityCommands.h"
#include "ExplorerShell/GroupingCommands.h"
#include "ExplorerShell/HostFeedback.h"
#include "ExplorerShell/ProjectCommands.h"
#include "ExplorerShell/SelectionCommands.h"
#include "ExplorerShell/TreeCommands.h"
#include "HostFrame/ExplorerSession.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace aec::shell
{

namespace
{

// A message as the one line that a failure prints.
std::string oneLine(std::string message)
{
    std::ranges::replace(message, '\n', ' ');
    std::ranges::replace(message, '\r', ' ');
    return message;
}

} // namespace

CShellCommandInterpreter::CShellCommandInterpreter(aec::host::CExplorerSession& session, std::ostream& out)
    : session_(session), out_(out), feedback_(std::make_unique<CHostFeedback>(session))
{
    treeCommands_ = std::make_unique<CTreeCommands>(session_, commands_);
    selectionCommands_ = std::make_unique<CSelectionCommands>(session_, commands_);
    entityCommands_ = std::make_unique<CEntityCommands>(session_, commands_);
    contextMenuCommands_ = std::make_unique<CContextMenuCommands>(session_, commands_);
    groupingCommands_ = std::make_unique<CGroupingCommands>(session_, commands_);
    projectCommands_ = std::make_unique<CProjectCommands>(session_, commands_);
    commands_.add({"help", "", "this list", 0, 0, false,
                   [this](const CCommandLine&, std::ostream& help)
                   {
                       commands_.writeHelp(help);
                   }});
    commands_.add({"quit", "", "leave the shell", 0, 0, false,
                   [this](const CCommandLine&, std::ostream&)
                   {
                       quit_ = true;
                   }});
}

CShellCommandInterpreter::~CShellCommandInterpreter() = default;

bool CShellCommandInterpreter::execute(std::string_view line)
{
    // Output waits until the command has succeeded, so that a failure shows only its error line.
    std::ostringstream output;
    try
    {
        run(line, output);
        out_ << output.str();
        return true;
    }
    catch (const common::EAssertionViolation& violation)
    {
        out_ << "error: internal error: " << oneLine(violation.what()) << '\n';
    }
    catch (const std::exception& failure)
    {
        out_ << "error: " << oneLine(failure.what()) << '\n';
    }
    catch (...)
    {
        out_ << "error: the command failed for an unknown reason\n";
    }
    out_.flush();
    return false;
}

bool CShellCommandInterpreter::hasQuit() const noexcept
{
    return quit_;
}

void CShellCommandInterpreter::run(std::string_view line, std::ostream& out)
{
    const CCommandLine words(line);
    if (words.isEmpty())
        return;
    const ShellCommand& command = commands_.find(words);
    if (command.needsProject && !session_.hasProject())
        throw common::EException("No project is open; open one with load FILE.");
    feedback_->start();
    // What the host was asked comes first: it happened before the command's outcome.
    std::ostringstream outcome;
    command.run(words, outcome);
    feedback_->write(out);
    out << outcome.str();
}

} // namespace aec::shell
