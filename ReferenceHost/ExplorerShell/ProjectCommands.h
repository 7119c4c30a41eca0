#pragma once

#include "ExplorerShell/CommandSet.h"

namespace aec::shell
{

// The commands of the host application around the explorer: undo, redo and history of the
// project's transactions, the answer to the next confirmation, and project files (save, load).
class CProjectCommands final : public CCommandSet
{
public:
    CProjectCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    // Undoes or redoes the next step.
    void replay(bool undo, std::ostream& out);
    void writeHistory(std::ostream& out);
    void answer(const CCommandLine& line, std::ostream& out);
    void save(const CCommandLine& line, std::ostream& out);
    void load(const CCommandLine& line, std::ostream& out);
};

} // namespace aec::shell
