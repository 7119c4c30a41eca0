#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace aec::fault_injection::test
{

// The words of an action's name as one test name, each word capitalised: "copy a sheet" gives
// "CopyASheet"; what is neither letter nor digit separates words.
std::string testNameFromWords(std::string_view words);

// For INSTANTIATE_TEST_SUITE_P over actions that carry a `name`.
template <class Action>
std::string testNameOf(const ::testing::TestParamInfo<Action>& info)
{
    return testNameFromWords(info.param.name);
}

} // namespace aec::fault_injection::test
