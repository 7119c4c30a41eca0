#pragma once

#include "ExplorerShell/CommandTable.h"

#include <iosfwd>
#include <memory>
#include <string_view>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

class CContextMenuCommands;
class CEntityCommands;
class CGroupingCommands;
class CHostFeedback;
class CProjectCommands;
class CSelectionCommands;
class CTopicCommands;
class CTreeCommands;

// Runs what a user types into the terminal host against an explorer session, one line at a time,
// through the same paths a panel uses (GUI event handler, GUI commands, context menu, grouping
// buttons). The terminal program, fuzzers, soak drivers and the desktop program's scripts all drive
// the explorer through this class, so that they run exactly what a user would type.
//
// A command's output is held back until it has succeeded: a failed command prints nothing but its
// one error line, and since every change runs inside the library's transactions, or is checked
// before it starts, it leaves the project as it was.
class CShellCommandInterpreter
{
public:
    // The session must outlive the interpreter. Error lines go to `errors`, or to `out` without one.
    CShellCommandInterpreter(aec::host::CExplorerSession& session, std::ostream& out,
                             std::ostream* errors = nullptr);
    ~CShellCommandInterpreter();
    CShellCommandInterpreter(const CShellCommandInterpreter&) = delete;
    CShellCommandInterpreter& operator=(const CShellCommandInterpreter&) = delete;

    // Runs one command line (blank lines and lines starting with '#' do nothing and succeed).
    // Prints the result to `out`; a failure prints exactly one line "error: ..." to the errors,
    // leaves the project as it was and returns false. Never throws for bad input.
    bool execute(std::string_view line);
    // After a `quit` that was not refused (unsaved changes the user kept).
    bool hasQuit() const noexcept;

private:
    void run(std::string_view line, std::ostream& out);
    // The document of the open project edits properties in the terminal: its context is this
    // interpreter's, installed for each project the session shows.

    aec::host::CExplorerSession& session_;
    std::ostream& out_;
    std::ostream& errors_;
    std::unique_ptr<CHostFeedback> feedback_;
    CCommandTable commands_;
    std::unique_ptr<CTreeCommands> treeCommands_;
    std::unique_ptr<CSelectionCommands> selectionCommands_;
    std::unique_ptr<CEntityCommands> entityCommands_;
    std::unique_ptr<CContextMenuCommands> contextMenuCommands_;
    std::unique_ptr<CGroupingCommands> groupingCommands_;
    std::unique_ptr<CProjectCommands> projectCommands_;
    std::unique_ptr<CTopicCommands> topicCommands_;
    bool quit_ = false;
};

} // namespace aec::shell
