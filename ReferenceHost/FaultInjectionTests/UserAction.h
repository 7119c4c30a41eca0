#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace aec::fault_injection::test
{

class CSessionUnderFaults;

// One thing a user does to the project through the explorer, done the way the user does it: a
// command, a context-menu item, or a call of the entity controller where the host program has
// nothing else to offer.
struct UserAction
{
    std::string name;
    // What the user did just before, and what is not under test: a selection, a queued dialog
    // answer, a copy to paste.
    std::function<void(CSessionUnderFaults&)> prepare;
    std::function<void(CSessionUnderFaults&)> perform;
    // Whether the action changes the project when nothing fails.
    bool changesProject;
};

// For test names and messages: the action's name.
void PrintTo(const UserAction& action, std::ostream* stream);

// Every model-changing operation of the entity controller, and copy, which reads what cut reads.
const std::vector<UserAction>& userActions();

} // namespace aec::fault_injection::test
