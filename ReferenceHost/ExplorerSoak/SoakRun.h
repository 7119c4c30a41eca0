#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <sstream>
#include <string>

namespace aec::host
{
class CExplorerConsistencyCheck;
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{
class CShellCommandInterpreter;
} // namespace aec::shell

namespace aec::soak
{

class CSoakCommandSource;

// What a soak run did.
struct SoakReport
{
    std::size_t actions = 0;
    std::size_t commandLines = 0;
    // Lines the shell refused (a name taken, nothing selected, nothing to undo, ...).
    std::size_t refusedLines = 0;
    std::size_t largestProject = 0;
    // The steps undone at the end to get back to the start.
    std::size_t undoneSteps = 0;
};

// One soak: an explorer session over the sample project, driven by a seeded stream of user actions
// through the terminal host's command interpreter. After every command line the explorer must
// agree with the project (the consistency check), and a refused line must have left the project
// and its undo history as they were; at the end, undoing every step must give back the sample
// project exactly. The same seed makes the same run.
class CSoakRun
{
public:
    // Each command line and what the shell answered go to the trace, when given; it must outlive
    // the run.
    CSoakRun(std::uint64_t seed, std::ostream* trace);
    ~CSoakRun();
    CSoakRun(const CSoakRun&) = delete;
    CSoakRun& operator=(const CSoakRun&) = delete;

    // Throws common::EException naming the action, its line and what went wrong, at the first
    // failure. Once only.
    SoakReport run(std::size_t actionCount);

private:
    void runLine(std::size_t action, const std::string& line, SoakReport& report);
    void undoEverything(SoakReport& report);

    std::ostream* trace_;
    std::filesystem::path tableFile_;
    std::ostringstream answers_;
    std::unique_ptr<host::CExplorerSession> session_;
    std::unique_ptr<shell::CShellCommandInterpreter> interpreter_;
    std::unique_ptr<host::CExplorerConsistencyCheck> check_;
    std::unique_ptr<CSoakCommandSource> commands_;
    std::string initialDump_;
};

} // namespace aec::soak
