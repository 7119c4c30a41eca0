#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

// Writes the tree that the session's panel shows, as a person reads it (tree) and as scripts and
// tests compare it (dump).
class CTreeWriter
{
public:
    // The session must have a project open.
    explicit CTreeWriter(host::CExplorerSession& session);

    // Groups and subgroups with their numbers, fold markers ([+] folded, [-] unfolded) and entity
    // counts; the entities of unfolded subgroups of unfolded groups, selected ones marked with '*'.
    void writeTree(std::ostream& out) const;

    // One node a line in tree order, fields separated by tabs:
    //   group     index  expanded(0/1)  name  count
    //   subgroup  group-index  index  expanded  name  count      (every subgroup, folded or not)
    //   entity    selected(0/1)  name  type  identifier          (under unfolded subgroups of
    //                                                             unfolded groups)
    // The subgroup of a group without grouping has an empty name. Tabs, line breaks and
    // backslashes in names are written as \t, \n, \r and \\, so that each node stays one line.
    void writeDump(std::ostream& out) const;

    // A name as a field of a tab-separated line, escaped as the dump escapes it.
    static std::string dumpField(std::wstring_view name);

private:
    host::CExplorerSession& session_;
};

} // namespace aec::shell
