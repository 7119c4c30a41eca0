// Types the input into the terminal host line by line, over the sample project. Every line must
// either succeed or print exactly one error line and leave the project, the tree and the undo
// history as they were. A contract violation reached from what a user types is a fault even though
// the shell reports it as an "internal error" and goes on.

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "ExplorerShell/ShellCommandInterpreter.h"
#include "HostFrame/ExplorerSession.h"
#include "Support/FuzzCheck.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

namespace
{

using namespace aec;

host::CExplorerSession& session()
{
    static host::CExplorerSession explorerSession(42);
    return explorerSession;
}

// What a failed line must leave alone: the project's content, the tree as the shell prints it
// (folds, selection, grouping) and the undo history.
std::string everything(shell::CShellCommandInterpreter& observer, std::ostringstream& observed)
{
    if (!session().hasProject())
        return {};
    observed.str({});
    observer.execute("dump");
    const model::CUndoHistory& history = session().getUndoHistory();
    std::string state = session().getProject().canonicalDump() + observed.str();
    for (const std::string& name : history.getUndoNames())
        state += "undo " + name + '\n';
    for (const std::string& name : history.getRedoNames())
        state += "redo " + name + '\n';
    return state;
}

// The fuzzer would write project files wherever its mutations point, as the root user it may run
// as: saving is left to the project file target, which saves into its own directory.
bool writesFiles(std::string_view line)
{
    const std::size_t start = line.find_first_not_of(" \t");
    return start != std::string_view::npos && line.substr(start).starts_with("save");
}

void checkLines(std::string_view input)
{
    session().open(model::buildSampleProject());
    std::ostringstream out;
    shell::CShellCommandInterpreter interpreter(session(), out);
    std::ostringstream observed;
    shell::CShellCommandInterpreter observer(session(), observed);

    // What one line leaves is what the next one starts from.
    std::string state = everything(observer, observed);
    while (!input.empty() && !interpreter.hasQuit())
    {
        const std::size_t end = input.find('\n');
        const std::string_view line = input.substr(0, end);
        input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
        if (writesFiles(line))
            continue;

        out.str({});
        const bool succeeded = interpreter.execute(line);
        std::string after = everything(observer, observed);
        if (!succeeded)
        {
            // The one error line: told by its start, since messages quote what was typed.
            const std::string printed = out.str();
            FUZZ_CHECK(printed.starts_with("error: ") && printed.find('\n') == printed.size() - 1);
            FUZZ_CHECK(!printed.starts_with("error: internal error: "));
            FUZZ_CHECK(printed != "error: the command failed for an unknown reason\n");
            FUZZ_CHECK(after == state);
        }
        state = std::move(after);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput([&]
                             { checkLines(std::string_view(reinterpret_cast<const char*>(data), size)); });
}
