// explorer-soak: drives the explorer of the reference host with a long, seeded stream of user
// actions typed into the terminal host's command interpreter, and checks the explorer against its
// project after every line and the project against its start after undoing everything.

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "ExplorerShell/ShellOptions.h"
#include "ExplorerSoak/SoakRun.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <iostream>
#include <string>

namespace
{

constexpr const char* usage = "Usage: explorer-soak [--seed N] [--actions N] [--trace]";

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("", "explorer-soak");
    app.allow_windows_style_options(false);
    app.set_help_flag("-h,--help", "show this help");
    std::string seedText = "1";
    std::string actionsText = "1000";
    bool traced = false;
    app.add_option("--seed", seedText, "seed of the actions and the identifiers (default 1)")->type_name("N");
    app.add_option("--actions", actionsText, "how many user actions to run (default 1000)")->type_name("N");
    app.add_flag("--trace", traced, "print every command line and the shell's answer");
    std::uint64_t seed = 0;
    std::uint64_t actions = 0;
    try
    {
        app.parse(argc, argv);
        seed = aec::shell::parseWholeNumberOption("--seed", seedText);
        actions = aec::shell::parseWholeNumberOption("--actions", actionsText);
    }
    catch (const CLI::CallForHelp&)
    {
        std::cout << app.help();
        return 0;
    }
    // CLI11's errors, and common::EException for numbers that do not parse.
    catch (const std::exception& error)
    {
        std::cerr << "explorer-soak: " << error.what() << '\n' << usage << '\n';
        return 2;
    }

    try
    {
        aec::soak::CSoakRun soak(seed, traced ? &std::cout : nullptr);
        const aec::soak::SoakReport report = soak.run(actions);
        std::cout << "explorer-soak: seed " << seed << ", " << report.actions << " actions, "
                  << report.commandLines << " command lines (" << report.refusedLines
                  << " refused), largest project " << report.largestProject << " entities; undid "
                  << report.undoneSteps
                  << " steps back to the start; the explorer agreed with the project throughout\n";
        return 0;
    }
    catch (const common::EException& failure)
    {
        std::cerr << "explorer-soak: seed " << seed << ": " << failure.what() << '\n';
    }
    catch (const common::EAssertionViolation& violation)
    {
        std::cerr << "explorer-soak: seed " << seed << ": internal error: " << violation.what() << '\n';
    }
    catch (const std::exception& failure)
    {
        std::cerr << "explorer-soak: seed " << seed << ": " << failure.what() << '\n';
    }
    return 1;
}
