#pragma once

#include "Common/UUID.h"
#include "ExplorerDesktop/ExplorerTreeNode.h"
#include "aec/EntityId.h"

#include <QAbstractItemModel>
#include <boost/signals2/connection.hpp>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace aec
{
class IProject;
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
} // namespace aec

namespace aec::host
{
class CExplorerPanel;
class CExplorerSession;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;

// The explorer's tree as a Qt item model: the groups at the top, their subgroups, and the entities
// of each subgroup, in one column; a group without grouping holds its entities itself. It follows
// the session's panel: whenever the panel says that the tree changed, it compares the explorer with
// what it shows, group by group and subgroup by subgroup, and tells its views exactly which rows
// came, went or changed, so that views keep their scroll position, selection and editors. A new
// order of the same rows (a sort order flipped) is one layout change, as a sorting proxy makes it.
// A subgroup whose entities and names are unchanged is compared without being read again, so that
// a click costs little however large the project is.
//
// All entities are rows whatever the fold state, so that a view's selection can hold the whole
// selection of the explorer; the fold state is data (ExpandedRole) that a tree view follows through
// expandedChanged and changes through setExpanded, which folds through the panel as a click does.
// Renaming an entity through setData goes through the entity controller.
class CExplorerItemModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role
    {
        KindRole = Qt::UserRole + 1, // int of CExplorerTreeNode::Kind
        EntityIdRole,                // entities: the identifier's text
        EntityCountRole,             // groups and subgroups
        ExpandedRole,                // groups and subgroups
    };

    CExplorerItemModel(host::CExplorerSession& session, CCommandRunner& runner, QObject* parent = nullptr);
    ~CExplorerItemModel() override;

    // Folds or unfolds group ROW through the panel, as a click does. A flat group shows the
    // entities of its only subgroup, which folds and unfolds with it, so that the explorer's stored
    // state says what the user sees.
    static void toggleGroupInPanel(host::CExplorerPanel& panel, int row, bool expanded);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // The node behind an index of this model; null for the invisible root.
    const CExplorerTreeNode* nodeAt(const QModelIndex& index) const;
    // The invisible root, parent of the groups.
    const CExplorerTreeNode& rootNode() const noexcept { return *root_; }
    QModelIndex indexOf(const CExplorerTreeNode& node) const;
    // Invalid when the tree does not show the entity.
    QModelIndex indexOfEntity(const EntityId& entity) const;
    QModelIndex indexOfGroup(const common::UUID& group) const;
    // The identifier of the group that holds the index (or is it).
    std::optional<common::UUID> groupIdAt(const QModelIndex& index) const;

    bool isExpanded(const QModelIndex& index) const;
    // Folds or unfolds a group or subgroup through the panel, as a click does. Indexes of entities,
    // and calls while the model follows the explorer, do nothing. When the panel does not fold as
    // asked, expandedChanged tells the views the explorer's state again.
    void setExpanded(const QModelIndex& index, bool expanded);
    bool isSynchronizing() const noexcept { return synchronizing_; }

    // Reads the tree again and tells the views what changed. The panel's tree-changed signal calls it.
    void synchronize();

Q_SIGNALS:
    // A group or subgroup was folded or unfolded in the explorer, or came already unfolded.
    void expandedChanged(const QModelIndex& index, bool expanded);
    // The model is about to follow the explorer: rows may go. A selection model that drops the
    // rows the explorer no longer selects now spares the views a new selection per removed run.
    void aboutToSynchronize();
    // The model shows the explorer as it is now.
    void synchronized();

private:
    using Node = CExplorerTreeNode;
    using NodeList = std::vector<std::unique_ptr<Node>>;
    // Gives a node that is about to be inserted its children.
    using FillNew = std::function<void(int wantedRow, Node& inserted)>;
    // Brings a node that stays up to date with the wanted one at the same row.
    using UpdateKept = std::function<void(const QModelIndex& index, Node& kept, Node& wanted)>;

    void mergeGroups();
    // Makes the children of `shown` those of `wanted`, by key: removed and inserted in runs, a new
    // order of the rows that stay in one layout change, then each kept row updated.
    void mergeChildren(const QModelIndex& parent, Node& shown, NodeList wanted, const FillNew& fillNew,
                       const UpdateKept& updateKept);
    void removeUnwanted(const QModelIndex& parent, Node& shown, const NodeList& wanted);
    void reorder(const QModelIndex& parent, Node& shown, const NodeList& wanted);
    void insertMissing(const QModelIndex& parent, Node& shown, NodeList& wanted, const FillNew& fillNew);
    void updateGroup(const QModelIndex& index, Node& shown, Node& wanted, const IProjectExplorerGroup& group,
                     const IProject& project, bool checkEntities);
    void updateEntities(const QModelIndex& index, Node& container, const IProjectExplorerSubgroup& subgroup,
                        const IProject& project, bool renamable, bool checkEntities);
    // Whether the group's entities may differ from its rows: the panel's content stamp of the
    // group, its grouping key or its sort order changed since the last look.
    bool entitiesMayHaveChanged(const IProjectExplorerGroup& group, std::uint64_t contentStamp);
    bool showsSameEntities(const Node& container, const IProjectExplorerSubgroup& subgroup,
                           const IProject& project) const;
    void replaceChildren(const QModelIndex& index, Node& shown, NodeList children);
    void updateDisplay(const QModelIndex& index, Node& shown, const Node& wanted);
    void noteInserted(const Node& inserted);
    void forgetEntities(const Node& removed);
    void indexEntities();
    Node& nodeOrRoot(const QModelIndex& index) const;

    host::CExplorerSession& session_;
    CCommandRunner& runner_;
    std::unique_ptr<Node> root_;
    std::unordered_map<EntityId, const Node*> entities_;
    std::vector<const Node*> foldChanges_;
    // What each group's entities were last compared against: the panel's content stamp of the
    // group, its grouping key and sort order. Entities are compared again only when one changed.
    struct SeenGroup
    {
        std::uint64_t contentStamp = 0;
        std::optional<std::wstring> groupingKey;
        int sortOrder = 0;

        friend bool operator==(const SeenGroup&, const SeenGroup&) = default;
    };
    std::unordered_map<std::wstring, SeenGroup> seenGroups_;
    bool synchronizing_ = false;
    boost::signals2::scoped_connection treeChanged_;
};

} // namespace aec::desktop
