#include "ShellInput.h"

#include "Common/Exception.h"

#include <boost/algorithm/string/predicate.hpp>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <readline/history.h>
#include <readline/readline.h>
#include <string_view>
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

namespace
{

// Ctrl+C at the prompt drops what was typed and starts a fresh line, as shells do; it does not end
// the program and lose the project. Readline's own calls are what a signal handler of a readline
// program may make (its documentation shows this use).
void clearTypedLine(int /*signal*/)
{
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, "\n", 1);
    rl_on_new_line();
    rl_replace_line("", 0);
    rl_redisplay();
}

} // namespace

CShellInput CShellInput::fromStandardInput()
{
    if (isatty(STDIN_FILENO) == 0)
        return CShellInput(Source::Stream);
    struct sigaction action
    {
    };
    action.sa_handler = clearTypedLine;
    sigemptyset(&action.sa_mask);
    // Restarted, so that readline goes on reading after the handler.
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGINT, &action, nullptr);
    return CShellInput(Source::Terminal);
}

bool CShellInput::askAtTerminal(const std::string& question)
{
    const std::unique_ptr<char, decltype(&std::free)> answer(readline((question + " [y/N] ").c_str()),
                                                             &std::free);
    if (answer == nullptr)
        return false;
    const std::string_view text(answer.get());
    return boost::algorithm::iequals(text, "y") || boost::algorithm::iequals(text, "yes");
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
