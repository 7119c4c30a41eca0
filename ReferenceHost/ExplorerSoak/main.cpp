// explorer-soak: drives the explorer of the reference host with a long, seeded stream of user
// actions typed into the terminal host's command interpreter, and checks the explorer against its
// project after every line and the project against its start after undoing everything.

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "ExplorerSoak/SoakRun.h"

#include <boost/program_options.hpp>
#include <cstdint>
#include <iostream>

namespace
{

namespace options = boost::program_options;

constexpr const char* usage = "Usage: explorer-soak [--seed N] [--actions N] [--trace]";

} // namespace

int main(int argc, char** argv)
{
    options::options_description description("Options");
    description.add_options()("help,h", "show this help")(
        "seed", options::value<std::uint64_t>()->default_value(1), "seed of the actions and the identifiers")(
        "actions", options::value<std::size_t>()->default_value(1000),
        "how many user actions to run")("trace", "print every command line and the shell's answer");
    options::variables_map values;
    try
    {
        options::store(options::parse_command_line(argc, argv, description), values);
        options::notify(values);
    }
    catch (const options::error& error)
    {
        std::cerr << "explorer-soak: " << error.what() << '\n' << usage << '\n';
        return 2;
    }
    if (values.count("help") != 0)
    {
        std::cout << usage << "\n\n" << description << '\n';
        return 0;
    }

    const auto seed = values["seed"].as<std::uint64_t>();
    const auto actions = values["actions"].as<std::size_t>();
    try
    {
        aec::soak::CSoakRun soak(seed, values.count("trace") != 0 ? &std::cout : nullptr);
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
