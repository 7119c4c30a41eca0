#include "ShellOptions.h"

#include "Common/Exception.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <memory>
#include <system_error>

namespace aec::shell
{
namespace
{

// The help starts with the program's own usage line rather than CLI11's generic one.
class CShellHelpFormatter : public CLI::Formatter
{
public:
    std::string make_usage(const CLI::App* /*app*/, std::string /*name*/) const override
    {
        return std::string(shellUsage) + '\n';
    }
};

aec::DialogAnswer parseAnswer(const std::string& text)
{
    if (text != "yes" && text != "no")
        throw common::EException("--answer takes yes or no, not \"" + text + "\".");
    return text == "yes" ? aec::DialogAnswer::Yes : aec::DialogAnswer::No;
}

} // namespace

std::uint64_t parseWholeNumberOption(const std::string& option, const std::string& text)
{
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        throw common::EException(option + " takes a whole number from 0 on, not \"" + text + "\".");
    return number;
}

std::optional<ShellOptions> parseShellOptions(int argc, const char* const* argv, std::ostream& help)
{
    ShellOptions parsed;
    std::optional<std::string> seed;
    std::optional<std::string> answer;
    CLI::App app("", "explorer-shell");
    // Options are written --name on every platform; /name would be a Windows path.
    app.allow_windows_style_options(false);
    app.formatter(std::make_shared<CShellHelpFormatter>());
    app.set_help_flag("-h,--help", "show this help");
    app.add_option("PROJECT.json", parsed.project, "the project file to open (default: the sample project)")
        ->type_name("");
    app.add_option("--script", parsed.script, "run the commands of FILE; stop at the first that fails")
        ->type_name("FILE");
    app.add_option("--seed", seed, "make identifiers from seed N, so that runs repeat exactly")
        ->type_name("N");
    app.add_option("--answer", answer, "answer confirmations yes or no unless told otherwise (default no)")
        ->type_name("yes|no");
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::CallForHelp&)
    {
        help << app.help();
        return std::nullopt;
    }
    catch (const CLI::ParseError& failure)
    {
        throw common::EException(failure.what());
    }
    if (seed)
        parsed.seed = parseWholeNumberOption("--seed", *seed);
    if (answer)
        parsed.answer = parseAnswer(*answer);
    return parsed;
}

} // namespace aec::shell
