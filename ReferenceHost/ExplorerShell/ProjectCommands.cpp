#include "ExplorerShell/ProjectCommands.h"

#include "AecModel/Project.h"
#include "AecModel/UndoHistory.h"
#include "AecModel/UndoStepLabel.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "ExplorerShell/UnsavedChanges.h"
#include "HostFrame/ExplorerSession.h"
#include "HostServices/HostServices.h"

#include <fmt/format.h>
#include <ostream>

namespace aec::shell
{

CProjectCommands::CProjectCommands(host::CExplorerSession& session, CCommandTable& table)
    : CCommandSet(session)
{
    table.add({"undo", "", "undo the last change of the project", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out)
               {
                   replay(true, out);
               }});
    table.add({"redo", "", "redo the last undone change", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out)
               {
                   replay(false, out);
               }});
    table.add({"history", "", "the changes that undo and redo would replay, next first", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out)
               {
                   writeHistory(out);
               }});
    table.add({"answer", "yes|no", "answer the next confirmation with yes or no", 1, 1, false,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   answer(line, out);
               }});
    table.add({"save", "FILE", "save the project with the explorer's state", 1, 1, true,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   save(line, out);
               }});
    table.add({"load", "FILE", "open a project file instead of the open project", 1, 1, false,
               [this](const CCommandLine& line, std::ostream& out)
               {
                   load(line, out);
               }});
}

void CProjectCommands::replay(bool undo, std::ostream& out)
{
    model::CUndoHistory& history = session_.getUndoHistory();
    if (!(undo ? history.canUndo() : history.canRedo()))
        throw common::EException(undo ? "There is nothing to undo." : "There is nothing to redo.");
    const std::vector<model::CUndoStep>& steps = undo ? history.getUndoSteps() : history.getRedoSteps();
    const std::string name = model::undoStepLabel(steps.back(), session_.getProject());
    if (undo)
        history.undo();
    else
        history.redo();
    out << (undo ? "undone: " : "redone: ") << name << '\n';
}

void CProjectCommands::writeHistory(std::ostream& out)
{
    const model::CUndoHistory& history = session_.getUndoHistory();
    const model::CProject& project = session_.getProject();
    for (auto step = history.getUndoSteps().rbegin(); step != history.getUndoSteps().rend(); ++step)
        out << "undo\t" << model::undoStepLabel(*step, project) << '\n';
    for (auto step = history.getRedoSteps().rbegin(); step != history.getRedoSteps().rend(); ++step)
        out << "redo\t" << model::undoStepLabel(*step, project) << '\n';
}

void CProjectCommands::answer(const CCommandLine& line, std::ostream& out)
{
    const std::string& text = line.getArgument(0).text;
    if (text != "yes" && text != "no")
        throw common::EException(fmt::format("Answer yes or no, not \"{}\".", text));
    session_.getHostServices().getDialogService().queueAnswer(text == "yes" ? DialogAnswer::Yes
                                                                            : DialogAnswer::No);
    out << "next answer: " << text << '\n';
}

void CProjectCommands::save(const CCommandLine& line, std::ostream& out)
{
    session_.save(model::pathFromUtf8(line.getArgument(0).text));
    out << "saved: " << CCommandLine::quote(line.getArgument(0).text) << '\n';
}

void CProjectCommands::load(const CCommandLine& line, std::ostream& out)
{
    if (session_.hasProject())
        CUnsavedChanges(session_).confirmDiscard("loading another project", "load");
    session_.load(model::pathFromUtf8(line.getArgument(0).text));
    out << "loaded: " << CCommandLine::quote(line.getArgument(0).text) << '\n';
    const model::CProject& project = session_.getProject();
    for (const std::string& note : project.getLoadNotes())
        out << "note: " << note << '\n';
    for (const std::string& warning : project.getPreferences().getWarnings())
        out << "note: " << warning << '\n';
}

} // namespace aec::shell
