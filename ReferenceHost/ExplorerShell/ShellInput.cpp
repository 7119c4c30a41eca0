#include "ShellInput.h"

#include "Common/Exception.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <readline/history.h>
#include <readline/readline.h>
#include <unistd.h>

namespace aec::shell
{

CShellInput::CShellInput(Source source) : source_(source) {}

CShellInput CShellInput::fromScript(const std::filesystem::path& script)
{
    CShellInput input(Source::Script);
    input.script_.open(script);
    if (!input.script_)
        throw common::EException("Cannot open the script " + script.string() + ".");
    return input;
}

CShellInput CShellInput::fromStandardInput()
{
    return CShellInput(isatty(STDIN_FILENO) != 0 ? Source::Terminal : Source::Stream);
}

std::optional<std::string> CShellInput::readLine()
{
    if (source_ == Source::Terminal)
    {
        const std::unique_ptr<char, decltype(&std::free)> line(readline("explorer> "), &std::free);
        if (line == nullptr)
            return std::nullopt;
        if (*line != '\0')
            add_history(line.get());
        return std::string(line.get());
    }
    std::istream& in = source_ == Source::Script ? static_cast<std::istream&>(script_) : std::cin;
    std::string line;
    if (!std::getline(in, line))
        return std::nullopt;
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

} // namespace aec::shell
