#pragma once

#include <memory>
#include <optional>
#include <string>

namespace aec::shell
{

// The terminal explorer-shell talks to, where the platforms part: on Linux GNU Readline edits the
// typed line and keeps the history (ShellTerminalReadline.cpp); on Windows the console does both
// itself and the shell reads and writes UTF-16 (ShellTerminalWin32.cpp). One per program, made
// before anything is written: it sets std::cout and std::cerr up to show UTF-8 text on the terminal
// and restores them when destroyed.
class CShellTerminal
{
public:
    CShellTerminal();
    ~CShellTerminal();
    CShellTerminal(const CShellTerminal&) = delete;
    CShellTerminal& operator=(const CShellTerminal&) = delete;

    // Whether stdin is a terminal that a user types at, rather than a pipe or a file.
    static bool isInputInteractive();
    // From now on Ctrl+C drops what was typed at the prompt and starts a fresh line, as shells do;
    // it no longer ends the program and loses the project.
    void clearLineOnInterrupt();
    // The next line typed after `prompt`, as UTF-8 without its line break, or nothing at the end of
    // the input (Ctrl+D; on Windows Ctrl+Z and Enter). A command line goes into the history.
    std::optional<std::string> readCommandLine(const std::string& prompt);
    // The same for an answer to a question, which stays out of the history where the platform
    // lets it.
    std::optional<std::string> readAnswer(const std::string& prompt);

private:
    // What the platform's terminal needs to keep.
    struct PlatformState;
    std::unique_ptr<PlatformState> state_;
};

} // namespace aec::shell
