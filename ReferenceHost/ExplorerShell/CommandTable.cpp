#include "ExplorerShell/CommandTable.h"

#include "Common/Check.h"
#include "Common/Exception.h"
#include "ExplorerShell/CommandLine.h"

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <fmt/format.h>
#include <ostream>

namespace aec::shell
{

namespace
{

std::string usageOf(const ShellCommand& command)
{
    return command.arguments.empty() ? command.name : command.name + ' ' + command.arguments;
}

} // namespace

void CCommandTable::add(ShellCommand command)
{
    COMMON_PRECONDITION(std::ranges::find(commands_, command.name, &ShellCommand::name) == commands_.end());
    COMMON_PRECONDITION(command.minArguments <= command.maxArguments && command.run);
    commands_.push_back(std::move(command));
}

const ShellCommand& CCommandTable::find(const CCommandLine& line) const
{
    // Command words are the program's own and all lower case; the caps lock key should not matter.
    const auto command =
        std::ranges::find_if(commands_, [&line](const ShellCommand& candidate)
                             { return boost::algorithm::iequals(candidate.name, line.getCommand()); });
    if (command == commands_.end())
        throw common::EException(
            fmt::format("Unknown command \"{}\"; type help for the list of commands.", line.getCommand()));
    const std::size_t count = line.getArgumentCount();
    if (count < command->minArguments || count > command->maxArguments)
        throw common::EException(fmt::format("Usage: {}", usageOf(*command)));
    return *command;
}

void CCommandTable::writeHelp(std::ostream& out) const
{
    std::size_t width = 0;
    for (const ShellCommand& command : commands_)
        width = std::max(width, usageOf(command).size());
    for (const ShellCommand& command : commands_)
        out << fmt::format("  {:<{}}  {}\n", usageOf(command), width, command.summary);
}

} // namespace aec::shell
