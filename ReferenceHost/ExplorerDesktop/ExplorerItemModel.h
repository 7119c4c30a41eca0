#pragma once

#include "Common/UUID.h"
#include "ExplorerDesktop/ExplorerTreeNode.h"
#include "aec/EntityId.h"

#include <QAbstractItemModel>
#include <boost/signals2/connection.hpp>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;

// The explorer's tree as a Qt item model: the groups at the top, their subgroups, and the entities
// of each subgroup, in one column. It follows the session's panel: whenever the panel says that
// the tree changed, it reads the tree again and tells its views exactly which rows came, went,
// moved or changed, so that views keep their scroll position, selection and editors.
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
    // The model shows the explorer as it is now.
    void synchronized();

private:
    using Node = CExplorerTreeNode;

    std::unique_ptr<Node> readTree() const;
    // Makes the shown children of `shown` those of `fresh`, which loses its children on the way.
    void mergeChildren(const QModelIndex& parent, Node& shown, Node& fresh);
    void removeUnwanted(const QModelIndex& parent, Node& shown,
                        const std::vector<std::unique_ptr<Node>>& wanted);
    void update(const QModelIndex& parent, Node& shown, Node& fresh);
    void noteUnfolded(const Node& inserted);
    void indexEntities();
    Node& nodeOrRoot(const QModelIndex& index) const;

    host::CExplorerSession& session_;
    CCommandRunner& runner_;
    std::unique_ptr<Node> root_;
    std::unordered_map<EntityId, const Node*> entities_;
    std::vector<const Node*> foldChanges_;
    bool synchronizing_ = false;
    boost::signals2::scoped_connection treeChanged_;
};

} // namespace aec::desktop
