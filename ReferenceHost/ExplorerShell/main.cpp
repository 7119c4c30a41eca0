// explorer-shell: the project explorer in a terminal. Parses the options, opens the project in an
// explorer session and runs command lines from the terminal, a script or stdin.

#include "AecModel/SampleProject.h"
#include "AecModel/WideText.h"
#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "ExplorerShell/ShellCommandInterpreter.h"
#include "ExplorerShell/ShellOptions.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/StatusService.h"
#include "HostServices/HostServices.h"
#include "ShellInput.h"
#include "ShellTerminal.h"

#include <boost/nowide/args.hpp>
#include <iostream>
#include <optional>
#include <string>

namespace
{

using aec::shell::ShellOptions;

int runShell(const ShellOptions& parsed, aec::shell::CShellTerminal& terminal)
{
    using aec::shell::CShellInput;

    aec::host::CExplorerSession session(parsed.seed);
    if (parsed.answer)
        session.getHostServices().getDialogService().setDefaultAnswer(*parsed.answer);
    if (parsed.project)
        session.load(aec::model::pathFromUtf8(*parsed.project));
    else
        session.open(aec::model::buildSampleProject());
    if (const std::wstring& status = session.getStatusService().getLastMessage(); !status.empty())
        std::cout << "status: " << aec::model::toUtf8(status) << '\n';

    CShellInput input =
        parsed.script ? CShellInput::fromScript(*parsed.script) : CShellInput::fromStandardInput(terminal);
    aec::shell::CShellCommandInterpreter interpreter(session, std::cout, &std::cerr);
    const bool atTerminal = input.getSource() == CShellInput::Source::Terminal;
    if (atTerminal)
    {
        // Questions that no `answer` answered go to the user; scripts and pipes keep the default.
        session.getHostServices().getDialogService().setAskCallback(
            [&input](const aec::host::CScriptedDialogService::Question& question)
            {
                return input.askAtTerminal(aec::model::toUtf8(question.text)) ? aec::DialogAnswer::Yes
                                                                              : aec::DialogAnswer::No;
            });
        std::cout << "Project explorer. Type help for the commands, quit to leave.\n";
        interpreter.execute("tree");
    }

    bool failed = false;
    while (!interpreter.hasQuit())
    {
        const std::optional<std::string> line = input.readLine();
        if (!line)
        {
            // The end of the input quits as `quit` does, with the same question about unsaved work.
            if (atTerminal)
                std::cout << '\n';
            else if (session.hasUnsavedChanges())
                std::cout << "> (end of input)\n";
            if (interpreter.execute("quit"))
                break;
            // At a terminal the user goes on and saves; a script or a pipe has nothing more to say.
            if (atTerminal)
                continue;
            return 1;
        }
        // A transcript of a script or a pipe shows each command above its output.
        if (input.getSource() != CShellInput::Source::Terminal && !line->empty())
            std::cout << "> " << *line << '\n';
        if (interpreter.execute(*line))
            continue;
        failed = true;
        if (input.getSource() == CShellInput::Source::Script)
            return 1;
    }
    // Typed commands may fail and be retyped; lines from a pipe run to the end like typed ones, but
    // the caller learns that one failed.
    return failed && input.getSource() == CShellInput::Source::Stream ? 1 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        // Windows hands a program its arguments in the ANSI code page; these are UTF-8 on every
        // platform, as the rest of the shell's text is.
        const boost::nowide::args utf8Arguments(argc, argv);
        aec::shell::CShellTerminal terminal;
        std::optional<ShellOptions> parsed;
        try
        {
            parsed = aec::shell::parseShellOptions(argc, argv, std::cout);
        }
        catch (const common::EException& failure)
        {
            std::cerr << "error: " << failure.what() << '\n' << aec::shell::shellUsage << '\n';
            return 2;
        }
        return parsed ? runShell(*parsed, terminal) : 0;
    }
    catch (const std::exception& failure)
    {
        std::cerr << "error: " << failure.what() << '\n';
    }
    catch (const common::EAssertionViolation& violation)
    {
        std::cerr << "error: internal error: " << violation.what() << '\n';
    }
    return 2;
}
