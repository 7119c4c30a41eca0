#include "ShellTerminal.h"

#include <csignal>
#include <cstdlib>
#include <memory>
#include <readline/history.h>
#include <readline/readline.h>
#include <unistd.h>

namespace aec::shell
{
namespace
{

// Ctrl+C at the prompt drops what was typed and starts a fresh line. Readline's own calls are what
// a signal handler of a readline program may make (its documentation shows this use).
void clearTypedLine(int /*signal*/)
{
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, "\n", 1);
    rl_on_new_line();
    rl_replace_line("", 0);
    rl_redisplay();
}

std::optional<std::string> readTypedLine(const std::string& prompt, bool remember)
{
    const std::unique_ptr<char, decltype(&std::free)> line(readline(prompt.c_str()), &std::free);
    if (line == nullptr)
        return std::nullopt;
    if (remember && *line != '\0')
        add_history(line.get());
    return std::string(line.get());
}

} // namespace

// A Linux terminal shows UTF-8 as it is written, and readline keeps its own state.
struct CShellTerminal::PlatformState
{
};

CShellTerminal::CShellTerminal() = default;
CShellTerminal::~CShellTerminal() = default;

bool CShellTerminal::isInputInteractive()
{
    return isatty(STDIN_FILENO) != 0;
}

void CShellTerminal::clearLineOnInterrupt()
{
    struct sigaction action
    {
    };
    action.sa_handler = clearTypedLine;
    sigemptyset(&action.sa_mask);
    // Restarted, so that readline goes on reading after the handler.
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGINT, &action, nullptr);
}

std::optional<std::string> CShellTerminal::readCommandLine(const std::string& prompt)
{
    return readTypedLine(prompt, true);
}

std::optional<std::string> CShellTerminal::readAnswer(const std::string& prompt)
{
    return readTypedLine(prompt, false);
}

} // namespace aec::shell
