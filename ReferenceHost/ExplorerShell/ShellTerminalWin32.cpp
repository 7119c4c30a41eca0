#include "AecModel/WideText.h"
#include "ConsoleOutputBuffer.h"
#include "ShellTerminal.h"

#include <array>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>
#include <windows.h>

namespace aec::shell
{
namespace
{

// Ctrl+C ends the console's pending read (see readConsoleLine) and then calls this on a thread of
// its own; handled here, it does not end the program. Ctrl+Break and closing the window still do.
BOOL WINAPI keepRunningOnCtrlC(DWORD event)
{
    return event == CTRL_C_EVENT ? TRUE : FALSE;
}

// One line from the console in its line mode, where the console itself edits the line and keeps the
// history (arrow keys, F7), and in UTF-16, which unlike the code-page reads holds every character.
// Nothing at the end of the input; the text without its line break otherwise.
std::optional<std::string> readConsoleLine(const std::string& prompt)
{
    const HANDLE console = GetStdHandle(STD_INPUT_HANDLE);
    for (;;)
    {
        std::cout << prompt << std::flush;
        std::wstring line;
        bool interrupted = false;
        while (line.empty() || line.back() != L'\n')
        {
            // A line longer than the buffer comes in several reads.
            std::array<wchar_t, 1024> buffer{};
            DWORD read = 0;
            SetLastError(ERROR_SUCCESS);
            const BOOL succeeded =
                ReadConsoleW(console, buffer.data(), static_cast<DWORD>(buffer.size()), &read, nullptr);
            if (succeeded == FALSE || read == 0)
            {
                // Ctrl+C ends the read with nothing read and the operation aborted.
                if (GetLastError() != ERROR_OPERATION_ABORTED)
                    return std::nullopt;
                interrupted = true;
                break;
            }
            line.append(buffer.data(), read);
        }
        if (interrupted)
        {
            std::cout << '\n';
            continue;
        }
        while (!line.empty() && (line.back() == L'\n' || line.back() == L'\r'))
            line.pop_back();
        // Ctrl+Z and Enter is the console's end of input.
        if (line.starts_with(L'\x1a'))
            return std::nullopt;
        return model::toUtf8(line);
    }
}

bool isConsole(HANDLE handle)
{
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) != FALSE;
}

} // namespace

// The streams a console shows take the console's own UTF-16 output; a redirected one stays as it
// is and gets the UTF-8 bytes.
struct CShellTerminal::PlatformState
{
    struct Replaced
    {
        std::ostream& stream;
        std::streambuf* original;
        std::unique_ptr<CConsoleOutputBuffer> console;
    };
    std::vector<Replaced> replaced;
};

CShellTerminal::CShellTerminal() : state_(std::make_unique<PlatformState>())
{
    for (const auto& [stream, handle] : {std::pair<std::ostream*, DWORD>{&std::cout, STD_OUTPUT_HANDLE},
                                         std::pair<std::ostream*, DWORD>{&std::cerr, STD_ERROR_HANDLE}})
    {
        const HANDLE output = GetStdHandle(handle);
        if (!isConsole(output))
            continue;
        stream->flush();
        auto console = std::make_unique<CConsoleOutputBuffer>(output);
        std::streambuf* const original = stream->rdbuf(console.get());
        state_->replaced.push_back({*stream, original, std::move(console)});
    }
}

CShellTerminal::~CShellTerminal()
{
    for (PlatformState::Replaced& replaced : state_->replaced)
    {
        replaced.stream.flush();
        replaced.stream.rdbuf(replaced.original);
    }
}

bool CShellTerminal::isInputInteractive()
{
    return isConsole(GetStdHandle(STD_INPUT_HANDLE));
}

void CShellTerminal::clearLineOnInterrupt()
{
    SetConsoleCtrlHandler(keepRunningOnCtrlC, TRUE);
}

std::optional<std::string> CShellTerminal::readCommandLine(const std::string& prompt)
{
    return readConsoleLine(prompt);
}

// The console keeps every line of its line mode in its history, answers too.
std::optional<std::string> CShellTerminal::readAnswer(const std::string& prompt)
{
    return readConsoleLine(prompt);
}

} // namespace aec::shell
