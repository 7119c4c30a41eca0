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

// A group of the shell's commands over one explorer session. Each set adds its commands to the
// command table when it is made; the session and the set must outlive the table's use.
class CCommandSet
{
protected:
    explicit CCommandSet(host::CExplorerSession& session) : session_(session) {}
    ~CCommandSet() = default;
    CCommandSet(const CCommandSet&) = delete;
    CCommandSet& operator=(const CCommandSet&) = delete;

    host::CExplorerSession& session_;
};

} // namespace aec::shell
