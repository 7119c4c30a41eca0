#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace aec::fault_injection::test
{

class CSessionUnderFaults;

// One thing the host does to the explorer's bindings while the user works: opening and closing a
// project (which makes and tears down the view, its grouping buttons and the root activity), and
// switching the activity off and on.
struct BindingAction
{
    std::string name;
    // What happened just before, and is not under test.
    std::function<void(CSessionUnderFaults&)> prepare;
    std::function<void(CSessionUnderFaults&)> perform;
};

// For test names and messages: the action's name.
void PrintTo(const BindingAction& action, std::ostream* stream);

const std::vector<BindingAction>& bindingActions();

} // namespace aec::fault_injection::test
