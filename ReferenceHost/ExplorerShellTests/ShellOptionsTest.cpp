#include "ExplorerShell/ShellOptions.h"

#include "Common/Exception.h"

#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <vector>

namespace aec::shell
{
namespace
{

std::optional<ShellOptions> parse(std::vector<const char*> arguments, std::ostream& help)
{
    arguments.insert(arguments.begin(), "explorer-shell");
    return parseShellOptions(static_cast<int>(arguments.size()), arguments.data(), help);
}

std::string refusalOf(const std::vector<const char*>& arguments)
{
    std::ostringstream help;
    try
    {
        parse(arguments, help);
    }
    catch (const common::EException& refusal)
    {
        return refusal.what();
    }
    return "(accepted)";
}

TEST(ShellOptionsTest, ReadsEveryOptionInAnyOrderTheSameOnEveryPlatform)
{
    std::ostringstream help;
    const std::optional<ShellOptions> parsed = parse(
        {"--seed", "18446744073709551615", "Räume.json", "--answer=yes", "--script", "run.shell"}, help);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->project, "Räume.json");
    EXPECT_EQ(parsed->script, "run.shell");
    EXPECT_EQ(parsed->seed, std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(parsed->answer, aec::DialogAnswer::Yes);

    const std::optional<ShellOptions> plain = parse({}, help);
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->project || plain->script || plain->seed || plain->answer);
    // A slash starts a Windows path, not an option, on Windows too.
    EXPECT_EQ(parse({"/seed"}, help)->project, "/seed");
    EXPECT_TRUE(help.str().empty());
}

TEST(ShellOptionsTest, HelpListsTheOptionsBelowTheUsage)
{
    std::ostringstream help;
    EXPECT_FALSE(parse({"--script", "run.shell", "--help"}, help));
    const std::string text = help.str();
    EXPECT_TRUE(text.starts_with(std::string(shellUsage) + '\n')) << text;
    for (const char* option : {"--script FILE", "--seed N", "--answer yes|no", "-h,--help"})
        EXPECT_NE(text.find(option), std::string::npos) << option << " is missing from\n" << text;
}

TEST(ShellOptionsTest, RefusesWhatDoesNotParseAndSaysWhy)
{
    for (const char* seed : {"many", "-1", "18446744073709551616", "7x", ""})
        EXPECT_EQ(refusalOf({"--seed", seed}),
                  std::string("--seed takes a whole number from 0 on, not \"") + seed + "\".");
    EXPECT_EQ(refusalOf({"--answer", "maybe"}), "--answer takes yes or no, not \"maybe\".");
    for (const std::vector<const char*>& arguments : std::vector<std::vector<const char*>>{
             {"--frobnicate"}, {"one.json", "two.json"}, {"--script"}, {"--seed", "1", "--seed", "2"}})
    {
        const std::string refusal = refusalOf(arguments);
        EXPECT_NE(refusal.find(arguments.back()), std::string::npos) << refusal;
    }
}

} // namespace
} // namespace aec::shell
