#pragma once

#include <memory>
#include <optional>
#include <string>

namespace aec
{
class IAttributeValueFormatter;
class IClipboard;
class IProject;
class IProjectExplorer;
class IProjectExplorerStateMonitor;
class IProjectPreferences;
} // namespace aec

namespace aec::host
{

class CExplorerSession;
class CGui;

// Judges whether an explorer shows its project as it is, from scratch: it works out every group's
// subgroups (names, order, entities) from the project and the group's grouping choice, and compares
// them with the explorer's tree; it compares the record of a state monitor of its own (grouping
// key, sort order, fold states of groups and subgroups) with the tree, and so finds a change of
// the tree that its signals did not announce; and it checks that the selection holds only
// entities that the tree shows.
//
// Made from a session, it also compares the state stored in the project's preferences with the
// tree, once one is stored, and checks that copy and cut are enabled exactly when something is
// selected, and paste exactly when the clipboard holds project entities. A project that comes with a stored state may name subgroups that are gone; such a
// state is kept until the explorer's first change, and the check reports it meanwhile.
class CExplorerConsistencyCheck
{
public:
    // The explorer, the project and the formatter must outlive the check. The check follows the
    // explorer's signals from now on, so it must be made before the changes that it is to judge.
    CExplorerConsistencyCheck(const IProjectExplorer& explorer, const IProject& project,
                              const IAttributeValueFormatter& formatter);
    // The session's open project; the check is for this project only and must end before it closes.
    explicit CExplorerConsistencyCheck(CExplorerSession& session);
    ~CExplorerConsistencyCheck();
    CExplorerConsistencyCheck(const CExplorerConsistencyCheck&) = delete;
    CExplorerConsistencyCheck& operator=(const CExplorerConsistencyCheck&) = delete;

    // A description of the first difference found, or nothing when the explorer agrees.
    std::optional<std::string> findDifference() const;
    // Throws common::EException with the description of the first difference.
    void verify() const;

private:
    std::optional<std::string> findTreeDifference() const;
    std::optional<std::string> findSelectionDifference() const;
    std::optional<std::string> findCommandDifference() const;

    const IProjectExplorer& explorer_;
    const IProject& project_;
    const IAttributeValueFormatter& formatter_;
    const IProjectPreferences* preferences_ = nullptr;
    const CGui* gui_ = nullptr;
    const IClipboard* clipboard_ = nullptr;
    std::unique_ptr<IProjectExplorerStateMonitor> monitor_;
};

} // namespace aec::host
