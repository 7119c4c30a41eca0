#pragma once

#include <fstream>
#include <optional>
#include <string>

namespace aec::shell
{

class CShellTerminal;

// Where the shell's command lines come from: a terminal (with line editing and history), a script
// file, or whatever else stdin is (a pipe, a file).
class CShellInput
{
public:
    enum class Source
    {
        Terminal,
        Script,
        Stream,
    };

    // Reads the script, named in UTF-8; throws common::EException when it cannot be opened.
    static CShellInput fromScript(const std::string& script);
    // Reads stdin, through the terminal's line editing when it is one.
    static CShellInput fromStandardInput(CShellTerminal& terminal);

    Source getSource() const noexcept { return source_; }
    // The next line without its line break, or nothing at the end of the input.
    std::optional<std::string> readLine();
    // Puts a yes/no question to the user at the terminal; only y or yes (in any case) is a yes, so
    // that Enter, the end of the input and anything else keep what is there.
    bool askAtTerminal(const std::string& question);

private:
    CShellInput(Source source, CShellTerminal* terminal);

    Source source_;
    CShellTerminal* terminal_;
    std::ifstream script_;
};

} // namespace aec::shell
