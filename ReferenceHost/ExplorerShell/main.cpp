// explorer-shell: the project explorer in a terminal. Parses the options, opens the project in an
// explorer session and runs command lines from the terminal, a script or stdin.

#include "AecModel/SampleProject.h"
#include "AecModel/WideText.h"
#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "ExplorerShell/ShellCommandInterpreter.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/StatusService.h"
#include "HostServices/HostServices.h"
#include "ShellInput.h"

#include <boost/program_options.hpp>
#include <cstdint>
#include <iostream>
#include <optional>
#include <string>

namespace
{

namespace options = boost::program_options;

struct ShellOptions
{
    std::optional<std::string> project;
    std::optional<std::string> script;
    std::optional<std::uint64_t> seed;
    std::optional<aec::DialogAnswer> answer;
};

constexpr const char* usage =
    "Usage: explorer-shell [PROJECT.json] [--script FILE] [--seed N] [--answer yes|no]";

options::options_description describeOptions()
{
    options::options_description description("Options");
    description.add_options()("help,h", "show this help and the commands")(
        "script", options::value<std::string>(), "run the commands of FILE; stop at the first that fails")(
        "seed", options::value<std::uint64_t>(), "make identifiers from seed N, so that runs repeat exactly")(
        "answer", options::value<std::string>(),
        "answer confirmations yes or no unless told otherwise (default no)")(
        "project", options::value<std::string>(), "the project file to open (default: the sample project)");
    return description;
}

// Throws options::error or common::EException for options that do not parse; nothing when only help
// was asked for.
std::optional<ShellOptions> parseOptions(int argc, char** argv)
{
    const options::options_description description = describeOptions();
    options::positional_options_description positional;
    positional.add("project", 1);
    options::variables_map values;
    options::store(options::command_line_parser(argc, argv).options(description).positional(positional).run(),
                   values);
    options::notify(values);
    if (values.count("help") != 0)
    {
        std::cout << usage << "\n\n" << description << '\n';
        return std::nullopt;
    }

    ShellOptions parsed;
    if (values.count("project") != 0)
        parsed.project = values["project"].as<std::string>();
    if (values.count("script") != 0)
        parsed.script = values["script"].as<std::string>();
    if (values.count("seed") != 0)
        parsed.seed = values["seed"].as<std::uint64_t>();
    if (values.count("answer") != 0)
    {
        const std::string& answer = values["answer"].as<std::string>();
        if (answer != "yes" && answer != "no")
            throw common::EException("--answer takes yes or no, not \"" + answer + "\".");
        parsed.answer = answer == "yes" ? aec::DialogAnswer::Yes : aec::DialogAnswer::No;
    }
    return parsed;
}

int runShell(const ShellOptions& parsed)
{
    using aec::shell::CShellInput;

    aec::host::CExplorerSession session(parsed.seed);
    if (parsed.answer)
        session.getHostServices().getDialogService().setDefaultAnswer(*parsed.answer);
    if (parsed.project)
        session.load(std::filesystem::path(std::u8string(parsed.project->begin(), parsed.project->end())));
    else
        session.open(aec::model::buildSampleProject());
    if (const std::wstring& status = session.getStatusService().getLastMessage(); !status.empty())
        std::cout << "status: " << aec::model::toUtf8(status) << '\n';

    CShellInput input =
        parsed.script ? CShellInput::fromScript(*parsed.script) : CShellInput::fromStandardInput();
    aec::shell::CShellCommandInterpreter interpreter(session, std::cout, &std::cerr);
    const bool atTerminal = input.getSource() == CShellInput::Source::Terminal;
    if (atTerminal)
    {
        // Questions that no `answer` answered go to the user; scripts and pipes keep the default.
        session.getHostServices().getDialogService().setAskCallback(
            [](const aec::host::CScriptedDialogService::Question& question)
            {
                return CShellInput::askAtTerminal(aec::model::toUtf8(question.text)) ? aec::DialogAnswer::Yes
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
        const std::optional<ShellOptions> parsed = parseOptions(argc, argv);
        return parsed ? runShell(*parsed) : 0;
    }
    catch (const boost::program_options::error& failure)
    {
        std::cerr << "error: " << failure.what() << '\n' << usage << '\n';
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
