#pragma once

#include "AecModel/SampleProject.h"
#include "ExplorerShell/ShellCommandInterpreter.h"
#include "HostFrame/ExplorerSession.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>

namespace aec::shell::test
{

// An interpreter over the sample project, its identifiers reproducible by the seed, with output
// and errors in streams of their own, as the terminal program keeps standard output and error.
class CShellInterpreterTest : public ::testing::Test
{
protected:
    explicit CShellInterpreterTest(std::uint64_t seed) : session{seed}
    {
        session.open(model::buildSampleProject());
    }

    // The output of a line that must succeed without a word on the error stream.
    std::string run(std::string_view line)
    {
        out.str({});
        errors.str({});
        EXPECT_TRUE(interpreter.execute(line)) << line << " failed: " << errors.str();
        EXPECT_EQ(errors.str(), "") << line;
        return out.str();
    }

    // The error of a line that must fail: it goes to the error stream alone, in the program's
    // own words.
    std::string fail(std::string_view line)
    {
        out.str({});
        errors.str({});
        EXPECT_FALSE(interpreter.execute(line)) << line << " succeeded: " << out.str();
        EXPECT_EQ(out.str(), "") << line;
        EXPECT_THAT(errors.str(), ::testing::Not(::testing::HasSubstr("internal error"))) << line;
        return errors.str();
    }

    host::CExplorerSession session;
    std::ostringstream out;
    std::ostringstream errors;
    CShellCommandInterpreter interpreter{session, out, &errors};
};

} // namespace aec::shell::test
