#pragma once

#include <iosfwd>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

class CCommandLine;
class CCommandTable;

// The commands of the host application around the explorer: undo, redo and history of the
// project's transactions, the answer to the next confirmation, and project files (save, load).
class CProjectCommands
{
public:
    // Adds the commands to the table; the session must outlive the table.
    CProjectCommands(host::CExplorerSession& session, CCommandTable& table);

private:
    void undo(std::ostream& out);
    void redo(std::ostream& out);
    void writeHistory(std::ostream& out);
    void answer(const CCommandLine& line, std::ostream& out);
    void save(const CCommandLine& line, std::ostream& out);
    void load(const CCommandLine& line, std::ostream& out);

    host::CExplorerSession& session_;
};

} // namespace aec::shell
