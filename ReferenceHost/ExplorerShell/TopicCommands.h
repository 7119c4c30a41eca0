#pragma once

#include "ExplorerShell/CommandSet.h"

namespace aec::shell
{

// The project's topics, managed by the user: listed in natural order, made, renamed and deleted
// (after a question; the entities that had a deleted topic keep none), and taken from the
// selection. Each change is one undo step.
class CTopicCommands final : public CCommandSet
{
public:
    CTopicCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void run(const CCommandLine& line, std::ostream& out);
    void list(std::ostream& out);
    void remove(const CCommandLine& line, std::ostream& out);
    void clearSelectionTopic(std::ostream& out);
};

} // namespace aec::shell
