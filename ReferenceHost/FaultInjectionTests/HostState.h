#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace aec::fault_injection::test
{

class CSessionUnderFaults;

// What a failed action must leave as it found it: the project's content, its undo history (steps
// to undo and to redo, by name) and whether the document follows project changes.
struct HostState
{
    std::string projectDump;
    std::vector<std::string> undoNames;
    std::vector<std::string> redoNames;
    bool followingChanges = false;

    friend bool operator==(const HostState&, const HostState&) = default;
};

HostState hostStateOf(CSessionUnderFaults& world);

// For test messages: the history and the flag in full, the dump by its size.
void PrintTo(const HostState& state, std::ostream* stream);

} // namespace aec::fault_injection::test
