#pragma once

#include "aec/GeneralPurposeDialogService.h"

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

namespace aec::shell
{

// What explorer-shell's command line asks for. Texts are UTF-8 on every platform.
struct ShellOptions
{
    std::optional<std::string> project;
    std::optional<std::string> script;
    std::optional<std::uint64_t> seed;
    std::optional<aec::DialogAnswer> answer;
};

inline constexpr const char* shellUsage =
    "Usage: explorer-shell [PROJECT.json] [--script FILE] [--seed N] [--answer yes|no]";

// The value of a number option such as --seed: digits only, and no more than 64 bits hold (CLI11's
// own conversion wraps "-1" round to the largest number and saturates above it). Throws
// common::EException naming the option otherwise.
std::uint64_t parseWholeNumberOption(const std::string& option, const std::string& text);

// Reads the program's arguments (UTF-8, the program's name first). Writes the help to `help` and
// gives nothing when it was asked for; throws common::EException, saying what is wrong, for
// arguments that do not parse.
std::optional<ShellOptions> parseShellOptions(int argc, const char* const* argv, std::ostream& help);

} // namespace aec::shell
