#include "ExplorerShell/ProjectCommands.h"

#include "AecModel/UndoHistory.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"
#include "ExplorerShell/CommandTable.h"
#include "HostFrame/ExplorerSession.h"
#include "HostServices/HostServices.h"

#include <filesystem>
#include <fmt/format.h>
#include <ostream>

namespace aec::shell
{

namespace
{

// Command lines are UTF-8, whatever the locale says.
std::filesystem::path pathFromUtf8(const std::string& text)
{
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

} // namespace

CProjectCommands::CProjectCommands(host::CExplorerSession& session, CCommandTable& table) : session_(session)
{
    table.add({"undo", "", "undo the last change of the project", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out) { undo(out); }});
    table.add({"redo", "", "redo the last undone change", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out) { redo(out); }});
    table.add({"history", "", "the changes that undo and redo would replay, next first", 0, 0, true,
               [this](const CCommandLine&, std::ostream& out) { writeHistory(out); }});
    table.add({"answer", "yes|no", "answer the next confirmation with yes or no", 1, 1, false,
               [this](const CCommandLine& line, std::ostream& out) { answer(line, out); }});
    table.add({"save", "FILE", "save the project with the explorer's state", 1, 1, true,
               [this](const CCommandLine& line, std::ostream& out) { save(line, out); }});
    table.add({"load", "FILE", "open a project file instead of the open project", 1, 1, false,
               [this](const CCommandLine& line, std::ostream& out) { load(line, out); }});
}

void CProjectCommands::undo(std::ostream& out)
{
    model::CUndoHistory& history = session_.getUndoHistory();
    if (!history.canUndo())
        throw common::EException("There is nothing to undo.");
    const std::string name = history.getUndoName().value_or("");
    history.undo();
    out << "undone: " << name << '\n';
}

void CProjectCommands::redo(std::ostream& out)
{
    model::CUndoHistory& history = session_.getUndoHistory();
    if (!history.canRedo())
        throw common::EException("There is nothing to redo.");
    const std::string name = history.getRedoName().value_or("");
    history.redo();
    out << "redone: " << name << '\n';
}

void CProjectCommands::writeHistory(std::ostream& out)
{
    const model::CUndoHistory& history = session_.getUndoHistory();
    for (const std::string& name : history.getUndoNames())
        out << "undo\t" << name << '\n';
    for (const std::string& name : history.getRedoNames())
        out << "redo\t" << name << '\n';
}

void CProjectCommands::answer(const CCommandLine& line, std::ostream& out)
{
    const std::string& text = line.getArgument(0).text;
    if (text != "yes" && text != "no")
        throw common::EException(fmt::format("Answer yes or no, not \"{}\".", text));
    session_.getHostServices().getDialogService().queueAnswer(text == "yes" ? DialogAnswer::Yes : DialogAnswer::No);
    out << "next answer: " << text << '\n';
}

void CProjectCommands::save(const CCommandLine& line, std::ostream& out)
{
    session_.save(pathFromUtf8(line.getArgument(0).text));
    out << "saved: " << CCommandLine::quote(line.getArgument(0).text) << '\n';
}

void CProjectCommands::load(const CCommandLine& line, std::ostream& out)
{
    session_.load(pathFromUtf8(line.getArgument(0).text));
    out << "loaded: " << CCommandLine::quote(line.getArgument(0).text) << '\n';
}

} // namespace aec::shell
