#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <limits>
#include <string>
#include <vector>

namespace aec::shell
{

class CCommandLine;

// One command of the shell: how it is typed, what it does, and how many arguments it takes.
struct ShellCommand
{
    using Run = std::function<void(const CCommandLine& line, std::ostream& out)>;
    static constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

    std::string name;
    std::string arguments; // as the help shows them: "G [S]"
    std::string summary;
    std::size_t minArguments = 0;
    std::size_t maxArguments = 0;
    // Whether it acts on the open project; without one it is refused before it runs.
    bool needsProject = true;
    Run run;
};

// The shell's commands in the order that help lists them.
class CCommandTable
{
public:
    // The name must be new.
    void add(ShellCommand command);
    // Throws common::EException for an unknown name, or a number of arguments the command does not
    // take, saying how the command is typed.
    const ShellCommand& find(const CCommandLine& line) const;
    void writeHelp(std::ostream& out) const;

private:
    std::vector<ShellCommand> commands_;
};

} // namespace aec::shell
