#include "ExplorerSoak/SoakRun.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace aec::soak
{
namespace
{

std::string traceOf(std::uint64_t seed, std::size_t actions)
{
    std::ostringstream trace;
    CSoakRun(seed, &trace).run(actions);
    return trace.str();
}

TEST(SoakRunTest, TheSeedDecidesTheWholeRun)
{
    const std::string first = traceOf(3, 300);
    EXPECT_EQ(traceOf(3, 300), first) << "a run can be repeated from its seed";
    EXPECT_NE(traceOf(4, 300), first);
    EXPECT_NE(first.find("> paste"), std::string::npos);
    EXPECT_NE(first.find("> undo"), std::string::npos);
}

TEST(SoakRunTest, ReportsWhatItDidAndUndoesEveryStep)
{
    const SoakReport report = CSoakRun(11, nullptr).run(400);
    EXPECT_EQ(report.actions, 400u);
    EXPECT_GT(report.commandLines, report.actions) << "a delete comes with its answer";
    EXPECT_GT(report.refusedLines, 0u) << "the stream holds commands the shell refuses";
    EXPECT_LT(report.refusedLines, report.commandLines / 2) << "most commands are ones a user would type";
    EXPECT_GT(report.undoneSteps, 0u);
}

} // namespace
} // namespace aec::soak
