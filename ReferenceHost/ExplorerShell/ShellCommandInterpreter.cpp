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
#include "ExplorerShell/TopicCommands.h"
#include "ExplorerShell/TreeCommands.h"
#include "ExplorerShell/UnsavedChanges.h"
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

CShellCommandInterpreter::CShellCommandInterpreter(aec::host::CExplorerSession& session, std::ostream& out,
                                                   std::ostream* errors)
    : session_(session), out_(out), errors_(errors != nullptr ? *errors : out),
      feedback_(std::make_unique<CHostFeedback>(session))
{
    treeCommands_ = std::make_unique<CTreeCommands>(session_, commands_);
    selectionCommands_ = std::make_unique<CSelectionCommands>(session_, commands_);
    entityCommands_ = std::make_unique<CEntityCommands>(session_, commands_);
    contextMenuCommands_ = std::make_unique<CContextMenuCommands>(session_, commands_);
    groupingCommands_ = std::make_unique<CGroupingCommands>(session_, commands_);
    projectCommands_ = std::make_unique<CProjectCommands>(session_, commands_);
    topicCommands_ = std::make_unique<CTopicCommands>(session_, commands_);
    commands_.add({"help", "", "this list", 0, 0, false,
                   [this](const CCommandLine&, std::ostream& help)
                   {
                       commands_.writeHelp(help);
                   }});
    commands_.add({"quit", "", "leave the shell, after confirmation if there are unsaved changes", 0, 0,
                   false,
                   [this](const CCommandLine&, std::ostream&)
                   {
                       CUnsavedChanges(session_).confirmDiscard("quitting", "quit");
                       quit_ = true;
                   }});
}

CShellCommandInterpreter::~CShellCommandInterpreter() = default;

bool CShellCommandInterpreter::execute(std::string_view line)
{
    // Output waits until the command has succeeded, so that a failure shows only its error line.
    std::ostringstream output;
    std::string error;
    try
    {
        run(line, output);
        out_ << output.str();
        return true;
    }
    catch (const common::EAssertionViolation& violation)
    {
        error = "internal error: " + oneLine(violation.what());
    }
    catch (const std::exception& failure)
    {
        error = oneLine(failure.what());
    }
    catch (...)
    {
        error = "the command failed for an unknown reason";
    }
    // What was printed before comes first, also where errors go to a stream of their own.
    out_.flush();
    errors_ << "error: " << error << '\n';
    errors_.flush();
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
