#include "ExplorerShell/CommandLine.h"

#include "Common/Exception.h"

#include <gtest/gtest.h>

namespace aec::shell
{
namespace
{

std::vector<CommandWord> wordsOf(std::string_view text)
{
    const CCommandLine line(text);
    std::vector<CommandWord> words;
    if (line.isEmpty())
        return words;
    words.push_back({line.getCommand(), false});
    for (std::size_t index = 0; index < line.getArgumentCount(); ++index)
        words.push_back(line.getArgument(index));
    return words;
}

TEST(CommandLineTest, SplitsAtBlanksAndKeepsQuotedBlanks)
{
    EXPECT_EQ(wordsOf("  select\t\"Sheet A-101\"  Cover "),
              (std::vector<CommandWord>{{"select", false}, {"Sheet A-101", true}, {"Cover", false}}));
    // A mark before a quoted name stays a mark; a quote at the start makes the whole word a name.
    EXPECT_EQ(wordsOf("select +\"Door 900\" \"+X\" \"\""),
              (std::vector<CommandWord>{{"select", false}, {"+Door 900", false}, {"+X", true}, {"", true}}));
    EXPECT_EQ(wordsOf(R"(rename "a \"b\" \\c" d)"),
              (std::vector<CommandWord>{{"rename", false}, {R"(a "b" \c)", true}, {"d", false}}));
    EXPECT_EQ(wordsOf("import C:\\tables\\rooms.csv"),
              (std::vector<CommandWord>{{"import", false}, {"C:\\tables\\rooms.csv", false}}))
        << "outside quotes a backslash is an ordinary character";
}

TEST(CommandLineTest, BlankAndCommentLinesHaveNoWords)
{
    EXPECT_TRUE(CCommandLine("").isEmpty());
    EXPECT_TRUE(CCommandLine(" \t \r").isEmpty());
    EXPECT_TRUE(CCommandLine("  # select all 0").isEmpty());
    EXPECT_EQ(CCommandLine("select #1").getArgument(0).text, "#1") << "only a leading # starts a comment";
}

TEST(CommandLineTest, RefusesBrokenQuotes)
{
    EXPECT_THROW(CCommandLine("select \"Sheet"), common::EException);
    EXPECT_THROW(CCommandLine(R"(select "a\n")"), common::EException);
    EXPECT_THROW(CCommandLine(R"(select "a\)"), common::EException);
}

TEST(CommandLineTest, JoinsArgumentsAndQuotesBackToTheSameWord)
{
    const CCommandLine line(R"(menu Change   topic/"MEP services")");
    EXPECT_EQ(line.joinArguments(0), "Change topic/MEP services");
    EXPECT_EQ(line.joinArguments(1), "topic/MEP services");
    EXPECT_EQ(line.joinArguments(2), "");

    for (const std::string text : {"plain", "two words", R"(q"uo\te)", ""})
        EXPECT_EQ(CCommandLine("x " + CCommandLine::quote(text)).getArgument(0).text, text);
}

} // namespace
} // namespace aec::shell
