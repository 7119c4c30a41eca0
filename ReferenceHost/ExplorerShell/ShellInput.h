#pragma once

#include <filesystem>
#include <fstream>
#include <istream>
#include <optional>
#include <string>

namespace aec::shell
{

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

    // Reads the script; throws common::EException when it cannot be opened.
    static CShellInput fromScript(const std::filesystem::path& script);
    // Reads stdin, through line editing when it is a terminal.
    static CShellInput fromStandardInput();

    Source getSource() const noexcept { return source_; }
    // The next line without its line break, or nothing at the end of the input.
    std::optional<std::string> readLine();
    // Puts a yes/no question to the user at the terminal; only y or yes (in any case) is a yes, so
    // that Enter, Ctrl+D and anything else keep what is there.
    static bool askAtTerminal(const std::string& question);

private:
    explicit CShellInput(Source source);

    Source source_;
    std::ifstream script_;
};

} // namespace aec::shell
