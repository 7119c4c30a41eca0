#include "ExplorerSoak/SoakRun.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Check.h"
#include "Common/Exception.h"
#include "ExplorerShell/ShellCommandInterpreter.h"
#include "ExplorerSoak/SoakCommandSource.h"
#include "HostChecks/ExplorerConsistencyCheck.h"
#include "HostFrame/ExplorerSession.h"

#include <algorithm>
#include <fmt/format.h>
#include <fstream>
#include <ostream>
#include <unistd.h>
#include <vector>

namespace aec::soak
{

namespace
{

// What a refused line must leave as it was.
struct ProjectState
{
    std::string dump;
    std::vector<std::string> undoNames;
    std::vector<std::string> redoNames;

    friend bool operator==(const ProjectState&, const ProjectState&) = default;
};

ProjectState stateOf(model::CProject& project)
{
    return {project.canonicalDump(), project.getUndoHistory().getUndoNames(),
            project.getUndoHistory().getRedoNames()};
}

std::filesystem::path writeTableFile(std::uint64_t seed)
{
    const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                       fmt::format("explorer-soak-{}-{}-rooms.csv", ::getpid(), seed);
    std::ofstream(path) << "Room,Area\n1.01,24.5\n1.02,18\n";
    return path;
}

} // namespace

CSoakRun::CSoakRun(std::uint64_t seed, std::ostream* trace)
    : trace_(trace), tableFile_(writeTableFile(seed)),
      session_(std::make_unique<host::CExplorerSession>(seed))
{
    session_->open(model::buildSampleProject());
    initialDump_ = session_->getProject().canonicalDump();
    interpreter_ = std::make_unique<shell::CShellCommandInterpreter>(*session_, answers_);
    check_ = std::make_unique<host::CExplorerConsistencyCheck>(*session_);
    commands_ = std::make_unique<CSoakCommandSource>(seed, *session_, tableFile_);
}

CSoakRun::~CSoakRun()
{
    commands_.reset();
    check_.reset();
    interpreter_.reset();
    session_.reset();
    std::error_code ignored;
    std::filesystem::remove(tableFile_, ignored);
}

SoakReport CSoakRun::run(std::size_t actionCount)
{
    COMMON_PRECONDITION(commands_ != nullptr);
    SoakReport report;
    check_->verify();
    for (std::size_t action = 1; action <= actionCount; ++action)
    {
        for (const std::string& line : commands_->nextAction())
            runLine(action, line, report);
        ++report.actions;
        report.largestProject = std::max(report.largestProject, session_->getProject().entityCount());
    }
    undoEverything(report);
    commands_.reset();
    return report;
}

void CSoakRun::runLine(std::size_t action, const std::string& line, SoakReport& report)
{
    model::CProject& project = session_->getProject();
    const ProjectState before = stateOf(project);
    answers_.str({});
    const bool done = interpreter_->execute(line);
    ++report.commandLines;
    if (trace_ != nullptr)
        *trace_ << "> " << line << '\n' << answers_.str();

    const auto failure = [&](const std::string& what)
    {
        return common::EException(fmt::format("Action {}, \"{}\": {}", action, line, what));
    };
    if (!done)
    {
        ++report.refusedLines;
        if (stateOf(project) != before)
            throw failure("the refused command changed the project or its undo history");
    }
    if (const std::optional<std::string> difference = check_->findDifference())
        throw failure(*difference);
}

void CSoakRun::undoEverything(SoakReport& report)
{
    while (session_->getUndoHistory().canUndo())
    {
        answers_.str({});
        if (!interpreter_->execute("undo"))
            throw common::EException("Undoing back to the start failed: " + answers_.str());
        ++report.undoneSteps;
        if (const std::optional<std::string> difference = check_->findDifference())
            throw common::EException("Undoing back to the start: " + *difference);
    }
    if (session_->getProject().canonicalDump() != initialDump_)
        throw common::EException("Undoing every step did not give back the project as it started");
}

} // namespace aec::soak
