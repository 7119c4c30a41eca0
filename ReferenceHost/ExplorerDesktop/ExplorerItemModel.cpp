#include "ExplorerDesktop/ExplorerItemModel.h"

#include "Common/Check.h"
#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/ExplorerTreeReader.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/TopicEditor.h"
#include "HostServices/HostServices.h"
#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace aec::desktop
{

namespace
{

using Kind = CExplorerTreeNode::Kind;

bool isFoldable(const CExplorerTreeNode& node)
{
    return node.getKind() == Kind::Group || node.getKind() == Kind::Subgroup;
}

bool isUnnamed(const CExplorerTreeNode& node)
{
    return node.getKind() == Kind::Subgroup && node.getKey().empty();
}

QIcon iconOf(const CExplorerTreeNode& node)
{
    // A style makes a new icon from its image files at every call, and a view asks for the icon of
    // every row it paints: made once, they cost nothing per row.
    static const QIcon file = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    static const QIcon folder = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
    static const QIcon openFolder = QApplication::style()->standardIcon(QStyle::SP_DirOpenIcon);
    if (node.getKind() == Kind::Entity)
        return file;
    return node.getDisplay().expanded ? openFolder : folder;
}

} // namespace

CExplorerItemModel::CExplorerItemModel(host::CExplorerSession& session, CCommandRunner& runner,
                                       QObject* parent)
    : QAbstractItemModel(parent), session_(session), runner_(runner),
      root_(std::make_unique<Node>(Kind::Root, std::wstring(), Node::Display{}))
{
    synchronize();
    treeChanged_ = session_.getPanel().treeChangedSignal().connect([this] { synchronize(); });
}

CExplorerItemModel::~CExplorerItemModel()
{
    treeChanged_.disconnect();
}

QModelIndex CExplorerItemModel::index(int row, int column, const QModelIndex& parent) const
{
    const Node& parentNode = nodeOrRoot(parent);
    if (column != 0 || row < 0 || row >= parentNode.getChildCount())
        return {};
    return createIndex(row, 0, &parentNode.getChild(row));
}

QModelIndex CExplorerItemModel::parent(const QModelIndex& child) const
{
    const Node* const node = nodeAt(child);
    if (node == nullptr || node->getParent() == nullptr || node->getParent() == root_.get())
        return {};
    return indexOf(*node->getParent());
}

int CExplorerItemModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    return nodeOrRoot(parent).getChildCount();
}

int CExplorerItemModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant CExplorerItemModel::data(const QModelIndex& index, int role) const
{
    const Node* const node = nodeAt(index);
    if (node == nullptr)
        return {};
    const Node::Display& display = node->getDisplay();
    const QString name = QString::fromStdWString(display.name);
    switch (role)
    {
    case Qt::DisplayRole:
        if (!isFoldable(*node))
            return name;
        return tr("%1 (%2)").arg(isUnnamed(*node) ? tr("(no grouping)") : name).arg(display.entityCount);
    case Qt::EditRole:
        return name;
    case Qt::DecorationRole:
        return iconOf(*node);
    case Qt::FontRole:
    {
        QFont font;
        font.setBold(node->getKind() == Kind::Group);
        // A subgroup without a name of its own has a label that is not a name.
        font.setItalic(isUnnamed(*node));
        return font;
    }
    case KindRole:
        return static_cast<int>(node->getKind());
    case EntityIdRole:
        if (node->getKind() == Kind::Entity)
            return QString::fromStdString(node->getEntity().uuid().toString());
        return {};
    case EntityCountRole:
        if (isFoldable(*node))
            return static_cast<qulonglong>(display.entityCount);
        return {};
    case ExpandedRole:
        if (isFoldable(*node))
            return display.expanded;
        return {};
    default:
        return {};
    }
}

bool CExplorerItemModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const Node* const node = nodeAt(index);
    if (role != Qt::EditRole || node == nullptr || !node->getDisplay().renamable)
        return false;
    const std::wstring newName = value.toString().toStdWString();
    if (newName == node->getDisplay().name)
        return true;
    const EntityId entity = node->getEntity();
    // The rename's object event rebuilds the panel, and the model follows before this returns.
    // Topics are no type of the explorer's; the host renames them itself.
    return runner_.run(
        [this, &entity, &newName]
        {
            host::CTopicEditor topics(session_.getProject());
            if (topics.isTopic(entity))
                topics.rename(TopicId(entity.uuid()), newName);
            else
                session_.getEntityController().renameEntity(entity, newName);
        });
}

Qt::ItemFlags CExplorerItemModel::flags(const QModelIndex& index) const
{
    const Node* const node = nodeAt(index);
    if (node == nullptr)
        return Qt::NoItemFlags;
    if (node->getKind() != Kind::Entity)
        return Qt::ItemIsEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (node->getDisplay().renamable)
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant CExplorerItemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return tr("Project explorer");
    return {};
}

const CExplorerTreeNode* CExplorerItemModel::nodeAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return nullptr;
    COMMON_PRECONDITION(index.model() == this);
    return static_cast<const Node*>(index.internalPointer());
}

QModelIndex CExplorerItemModel::indexOf(const CExplorerTreeNode& node) const
{
    if (&node == root_.get())
        return {};
    // Nodes are owned by the tree and never changed through an index; the pointer is only kept.
    return createIndex(node.getRow(), 0, const_cast<Node*>(&node));
}

QModelIndex CExplorerItemModel::indexOfEntity(const EntityId& entity) const
{
    const auto found = entities_.find(entity);
    return found == entities_.end() ? QModelIndex() : indexOf(*found->second);
}

QModelIndex CExplorerItemModel::indexOfGroup(const common::UUID& group) const
{
    const int row = root_->findChild(group.toWString());
    return row < 0 ? QModelIndex() : indexOf(root_->getChild(row));
}

std::optional<common::UUID> CExplorerItemModel::groupIdAt(const QModelIndex& index) const
{
    const Node* node = nodeAt(index);
    while (node != nullptr && node->getKind() != Kind::Group)
        node = node->getParent();
    if (node == nullptr)
        return std::nullopt;
    return common::UUID::parse(std::wstring_view(node->getKey()));
}

bool CExplorerItemModel::isExpanded(const QModelIndex& index) const
{
    const Node* const node = nodeAt(index);
    return node != nullptr && isFoldable(*node) && node->getDisplay().expanded;
}

void CExplorerItemModel::setExpanded(const QModelIndex& index, bool expanded)
{
    const Node* const node = nodeAt(index);
    if (synchronizing_ || node == nullptr || !isFoldable(*node) || node->getDisplay().expanded == expanded)
        return;

    host::CExplorerPanel& panel = session_.getPanel();
    const bool isGroup = node->getKind() == Kind::Group;
    const int row = node->getRow();
    const int groupRow = isGroup ? row : node->getParent()->getRow();
    const QPersistentModelIndex kept(index);
    runner_.run(
        [&panel, isGroup, row, groupRow, expanded]
        {
            if (!isGroup)
            {
                panel.toggleSubgroup(groupRow, row);
                return;
            }
            toggleGroupInPanel(panel, row, expanded);
        });
    // The toggle's tree change brought the node up to date, or the node is gone.
    if (kept.isValid() && isExpanded(kept) != expanded)
        Q_EMIT expandedChanged(kept, isExpanded(kept));
}

void CExplorerItemModel::toggleGroupInPanel(host::CExplorerPanel& panel, int row, bool expanded)
{
    panel.toggleGroup(row);
    const IProjectExplorerGroup& group =
        *std::next(std::as_const(panel.getExplorer()).getGroups().begin(), row);
    if (showsFlat(group) && flatSubgroup(group).isExpanded() != expanded)
        panel.toggleSubgroup(row, 0);
}

void CExplorerItemModel::synchronize()
{
    if (synchronizing_)
        return;
    synchronizing_ = true;
    try
    {
        Q_EMIT aboutToSynchronize();
        mergeGroups();
    }
    catch (...)
    {
        // The rows are as the views were last told, but the merge may have stopped between
        // inserting and indexing them: the index of entities follows what is shown, and the next
        // time every entity is compared again.
        indexEntities();
        seenGroups_.clear();
        synchronizing_ = false;
        foldChanges_.clear();
        // The merge may have stopped part way, after it destroyed some nodes and made others; the
        // model shows what it got to, and its entity index must name exactly that.
        indexEntities();
        throw;
    }
    synchronizing_ = false;

    for (const Node* node : std::exchange(foldChanges_, {}))
        Q_EMIT expandedChanged(indexOf(*node), node->getDisplay().expanded);
    Q_EMIT synchronized();
}

void CExplorerItemModel::mergeGroups()
{
    host::CExplorerPanel& panel = session_.getPanel();
    // The panel shows the explorer before the session has finished binding the project, so the
    // project is taken from where the explorer itself finds it.
    model::CSessionManager& sessionManager = session_.getHostServices().getSessionManager();
    if (!panel.hasExplorer() || !sessionManager.hasCurrentProject())
    {
        mergeChildren(QModelIndex(), *root_, {}, {}, {});
        return;
    }
    const IProject& project = sessionManager.getCurrentProject();
    std::vector<const IProjectExplorerGroup*> groups;
    NodeList wanted;
    for (const IProjectExplorerGroup& group : std::as_const(panel.getExplorer()).getGroups())
    {
        groups.push_back(&group);
        wanted.push_back(readGroupShell(group));
    }
    mergeChildren(
        QModelIndex(), *root_, std::move(wanted),
        [&groups, &project](int row, Node& inserted)
        { fillGroup(inserted, *groups[static_cast<std::size_t>(row)], project); },
        [this, &groups, &project, &panel](const QModelIndex& index, Node& shown, Node& fresh)
        {
            const IProjectExplorerGroup& group = *groups[static_cast<std::size_t>(index.row())];
            updateGroup(index, shown, fresh, group, project,
                        entitiesMayHaveChanged(group, panel.getContentStamp(group)));
        });
}

bool CExplorerItemModel::entitiesMayHaveChanged(const IProjectExplorerGroup& group,
                                                std::uint64_t contentStamp)
{
    const IProjectExplorerGroupingModel& grouping = group.getGroupingModel();
    SeenGroup now{contentStamp, grouping.getGroupingKeyText(), grouping.getSortOrder()};
    const auto [seen, inserted] = seenGroups_.try_emplace(group.getId().toWString(), now);
    if (inserted)
        return true;
    if (seen->second == now)
        return false;
    seen->second = std::move(now);
    return true;
}

void CExplorerItemModel::mergeChildren(const QModelIndex& parent, Node& shown, NodeList wanted,
                                       const FillNew& fillNew, const UpdateKept& updateKept)
{
    removeUnwanted(parent, shown, wanted);
    reorder(parent, shown, wanted);
    insertMissing(parent, shown, wanted, fillNew);
    COMMON_CHECK(shown.getChildCount() == static_cast<int>(wanted.size()));
    for (int row = 0; row < shown.getChildCount(); ++row)
        if (wanted[static_cast<std::size_t>(row)] != nullptr)
            updateKept(index(row, 0, parent), shown.getChild(row), *wanted[static_cast<std::size_t>(row)]);
}

void CExplorerItemModel::removeUnwanted(const QModelIndex& parent, Node& shown, const NodeList& wanted)
{
    std::unordered_set<std::wstring_view> wantedKeys;
    for (const std::unique_ptr<Node>& node : wanted)
        wantedKeys.insert(node->getKey());
    const auto isWanted = [&shown, &wantedKeys](int row)
    {
        return wantedKeys.contains(shown.getChild(row).getKey());
    };

    // Bottom up, so that the rows above a removed run keep their numbers; a run goes in one removal.
    for (int row = shown.getChildCount() - 1; row >= 0; --row)
    {
        if (isWanted(row))
            continue;
        const int last = row;
        while (row > 0 && !isWanted(row - 1))
            --row;
        beginRemoveRows(parent, row, last);
        for (int removed = row; removed <= last; ++removed)
            forgetEntities(shown.getChild(removed));
        shown.removeChildren(row, last);
        endRemoveRows();
    }
}

void CExplorerItemModel::reorder(const QModelIndex& parent, Node& shown, const NodeList& wanted)
{
    std::unordered_map<std::wstring_view, int> wantedRows;
    for (std::size_t row = 0; row < wanted.size(); ++row)
        wantedRows.emplace(wanted[row]->getKey(), static_cast<int>(row));
    // The rows that stay, by the row each wants; those in order need no layout change.
    std::vector<std::pair<int, int>> targets; // (wanted row, shown row)
    for (int row = 0; row < shown.getChildCount(); ++row)
        targets.emplace_back(wantedRows.at(shown.getChild(row).getKey()), row);
    if (std::ranges::is_sorted(targets))
        return;
    std::ranges::sort(targets);
    std::vector<int> oldRows;
    oldRows.reserve(targets.size());
    for (const auto& [wantedRow, shownRow] : targets)
        oldRows.push_back(shownRow);

    // As a sorting proxy does: one layout change, and the persistent indexes of the moved rows
    // follow their nodes, whose rows the permutation renumbers.
    const QList<QPersistentModelIndex> parents =
        parent.isValid() ? QList<QPersistentModelIndex>{QPersistentModelIndex(parent)}
                         : QList<QPersistentModelIndex>{};
    Q_EMIT layoutAboutToBeChanged(parents, QAbstractItemModel::VerticalSortHint);
    shown.permuteChildren(oldRows);
    const QModelIndexList persistent = persistentIndexList();
    for (const QModelIndex& index : persistent)
    {
        const Node* const node = nodeAt(index);
        if (node != nullptr && node->getParent() == &shown && node->getRow() != index.row())
            changePersistentIndex(index, indexOf(*node));
    }
    Q_EMIT layoutChanged(parents, QAbstractItemModel::VerticalSortHint);
}

void CExplorerItemModel::insertMissing(const QModelIndex& parent, Node& shown, NodeList& wanted,
                                       const FillNew& fillNew)
{
    // What stays is in the wanted order already, so every row that does not match comes new, and
    // a run of new rows comes in one insertion.
    const int wantedCount = static_cast<int>(wanted.size());
    const auto at = [&wanted](int row) -> std::unique_ptr<Node>&
    {
        return wanted[static_cast<std::size_t>(row)];
    };
    const auto isShownAt = [&shown, &at](int row)
    {
        return row < shown.getChildCount() && shown.getChild(row).getKey() == at(row)->getKey();
    };
    for (int row = 0; row < wantedCount; ++row)
    {
        if (isShownAt(row))
            continue;
        NodeList run;
        int last = row;
        for (;; ++last)
        {
            // Filled before the insertion starts: a failure leaves the rows as the views know them.
            if (fillNew)
                fillNew(last, *at(last));
            run.push_back(std::move(at(last)));
            if (last + 1 >= wantedCount ||
                (shown.getChildCount() > row && shown.getChild(row).getKey() == at(last + 1)->getKey()))
                break;
        }
        beginInsertRows(parent, row, last);
        shown.insertChildren(row, std::move(run));
        for (int inserted = row; inserted <= last; ++inserted)
            noteInserted(shown.getChild(inserted));
        endInsertRows();
        row = last;
    }
}

void CExplorerItemModel::updateGroup(const QModelIndex& index, Node& shown, Node& wanted,
                                     const IProjectExplorerGroup& group, const IProject& project,
                                     bool checkEntities)
{
    updateDisplay(index, shown, wanted);
    const bool renamable = hasRenamableEntities(group);
    const bool flat = showsFlat(group);
    const bool shownFlat = shown.getChildCount() > 0 && shown.getChild(0).getKind() == Kind::Entity;
    if (flat)
    {
        if (!shownFlat && shown.getChildCount() > 0)
            replaceChildren(index, shown, {});
        updateEntities(index, shown, flatSubgroup(group), project, renamable, checkEntities);
        return;
    }
    if (shownFlat)
        replaceChildren(index, shown, {});

    std::vector<const IProjectExplorerSubgroup*> subgroups;
    NodeList wantedSubgroups;
    for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
    {
        subgroups.push_back(&subgroup);
        wantedSubgroups.push_back(readSubgroupShell(subgroup));
    }
    const auto subgroupAt = [&subgroups](int row) -> const IProjectExplorerSubgroup&
    {
        return *subgroups[static_cast<std::size_t>(row)];
    };
    mergeChildren(
        index, shown, std::move(wantedSubgroups),
        [&subgroupAt, &project, renamable](int row, Node& inserted)
        { inserted.insertChildren(0, readEntities(subgroupAt(row), project, renamable)); },
        [this, &subgroupAt, &project, renamable, checkEntities](const QModelIndex& subgroupIndex, Node& kept,
                                                                Node& fresh)
        {
            updateDisplay(subgroupIndex, kept, fresh);
            updateEntities(subgroupIndex, kept, subgroupAt(subgroupIndex.row()), project, renamable,
                           checkEntities);
        });
}

void CExplorerItemModel::updateEntities(const QModelIndex& index, Node& container,
                                        const IProjectExplorerSubgroup& subgroup, const IProject& project,
                                        bool renamable, bool checkEntities)
{
    // Without a change of the project or of the grouping, the rows of a subgroup that shows as
    // many entities as it counts are its entities under their names: a click costs nothing here.
    if (!checkEntities &&
        container.getDisplay().entityCount == static_cast<std::size_t>(container.getChildCount()))
        return;
    if (showsSameEntities(container, subgroup, project) &&
        (container.getChildCount() == 0 || container.getChild(0).getDisplay().renamable == renamable))
        return;
    mergeChildren(index, container, readEntities(subgroup, project, renamable), {},
                  [this](const QModelIndex& entityIndex, Node& kept, Node& fresh)
                  { updateDisplay(entityIndex, kept, fresh); });
}

bool CExplorerItemModel::showsSameEntities(const Node& container, const IProjectExplorerSubgroup& subgroup,
                                           const IProject& project) const
{
    // Without reading the subgroup again: the same entities under the same names keep their
    // order, so the rows stand as they are.
    int count = 0;
    for (const EntityId& id : subgroup.getEntities())
    {
        const IEntity* const entity = project.findEntity(id);
        if (entity == nullptr)
            continue;
        const auto shown = entities_.find(id);
        if (shown == entities_.end() || shown->second->getParent() != &container ||
            shown->second->getDisplay().name != entity->getName())
            return false;
        ++count;
    }
    return count == container.getChildCount();
}

void CExplorerItemModel::replaceChildren(const QModelIndex& index, Node& shown, NodeList children)
{
    if (shown.getChildCount() > 0)
    {
        beginRemoveRows(index, 0, shown.getChildCount() - 1);
        for (int row = 0; row < shown.getChildCount(); ++row)
            forgetEntities(shown.getChild(row));
        shown.removeChildren(0, shown.getChildCount() - 1);
        endRemoveRows();
    }
    if (children.empty())
        return;
    const int last = static_cast<int>(children.size()) - 1;
    beginInsertRows(index, 0, last);
    shown.insertChildren(0, std::move(children));
    for (int row = 0; row <= last; ++row)
        noteInserted(shown.getChild(row));
    endInsertRows();
}

void CExplorerItemModel::updateDisplay(const QModelIndex& index, Node& shown, const Node& wanted)
{
    if (shown.getDisplay() == wanted.getDisplay())
        return;
    if (shown.getDisplay().expanded != wanted.getDisplay().expanded)
        foldChanges_.push_back(&shown);
    shown.setDisplay(wanted.getDisplay());
    Q_EMIT dataChanged(index, index);
}

void CExplorerItemModel::noteInserted(const Node& inserted)
{
    if (inserted.getKind() == Kind::Entity)
    {
        // An entity that moves to a subgroup above its old one comes there before it leaves; the
        // newest row is where it is shown, and the removal of the old one leaves it there.
        entities_.insert_or_assign(inserted.getEntity(), &inserted);
        return;
    }
    if (inserted.getDisplay().expanded)
        foldChanges_.push_back(&inserted);
    for (int row = 0; row < inserted.getChildCount(); ++row)
        noteInserted(inserted.getChild(row));
}

void CExplorerItemModel::forgetEntities(const Node& removed)
{
    if (removed.getKind() == Kind::Entity)
    {
        if (const auto found = entities_.find(removed.getEntity());
            found != entities_.end() && found->second == &removed)
            entities_.erase(found);
        return;
    }
    // A fold change noted for a node that goes would point at nothing.
    std::erase(foldChanges_, &removed);
    for (int row = 0; row < removed.getChildCount(); ++row)
        forgetEntities(removed.getChild(row));
}

void CExplorerItemModel::indexEntities()
{
    entities_.clear();
    const std::function<void(const Node&)> index = [this, &index](const Node& node)
    {
        if (node.getKind() == Kind::Entity)
            entities_.emplace(node.getEntity(), &node);
        for (int row = 0; row < node.getChildCount(); ++row)
            index(node.getChild(row));
    };
    index(*root_);
}

CExplorerTreeNode& CExplorerItemModel::nodeOrRoot(const QModelIndex& index) const
{
    if (!index.isValid())
        return *root_;
    COMMON_PRECONDITION(index.model() == this);
    return *static_cast<Node*>(index.internalPointer());
}

} // namespace aec::desktop
