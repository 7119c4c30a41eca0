#include "ExplorerDesktop/ExplorerItemModel.h"

#include "Common/Check.h"
#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/ExplorerTreeReader.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostServices/HostServices.h"
#include "aec/ProjectExplorerEntityController.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
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

QIcon iconOf(const CExplorerTreeNode& node)
{
    const QStyle* const style = QApplication::style();
    if (node.getKind() == Kind::Entity)
        return style->standardIcon(QStyle::SP_FileIcon);
    return style->standardIcon(node.getDisplay().expanded ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon);
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
        return tr("%1 (%2)").arg(name).arg(display.entityCount);
    case Qt::EditRole:
        return name;
    case Qt::DecorationRole:
        return iconOf(*node);
    case Qt::FontRole:
    {
        QFont font;
        font.setBold(node->getKind() == Kind::Group);
        // The subgroup of an ungrouped group has no name of its own; its label is not a name.
        font.setItalic(node->getKind() == Kind::Subgroup && node->getKey().empty());
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
    return runner_.run([this, &entity, &newName]
                       { session_.getEntityController().renameEntity(entity, newName); });
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
        [&panel, isGroup, row, groupRow]
        {
            if (isGroup)
                panel.toggleGroup(row);
            else
                panel.toggleSubgroup(groupRow, row);
        });
    // The toggle's tree change brought the node up to date, or the node is gone.
    if (kept.isValid() && isExpanded(kept) != expanded)
        Q_EMIT expandedChanged(kept, isExpanded(kept));
}

void CExplorerItemModel::synchronize()
{
    if (synchronizing_)
        return;
    synchronizing_ = true;
    try
    {
        std::unique_ptr<Node> fresh = readTree();
        mergeChildren(QModelIndex(), *root_, *fresh);
        indexEntities();
    }
    catch (...)
    {
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

std::unique_ptr<CExplorerTreeNode> CExplorerItemModel::readTree() const
{
    host::CExplorerPanel& panel = session_.getPanel();
    // The panel shows the explorer before the session has finished binding the project, so the
    // project is taken from where the explorer itself finds it.
    model::CSessionManager& sessionManager = session_.getHostServices().getSessionManager();
    if (!panel.hasExplorer() || !sessionManager.hasCurrentProject())
        return std::make_unique<Node>(Kind::Root, std::wstring(), Node::Display{});
    return readExplorerTree(panel.getExplorer(), sessionManager.getCurrentProject());
}

void CExplorerItemModel::mergeChildren(const QModelIndex& parent, Node& shown, Node& fresh)
{
    std::vector<std::unique_ptr<Node>> wanted = fresh.releaseChildren();
    removeUnwanted(parent, shown, wanted);

    std::unordered_set<std::wstring> shownKeys;
    for (int row = 0; row < shown.getChildCount(); ++row)
        shownKeys.insert(shown.getChild(row).getKey());

    const int wantedCount = static_cast<int>(wanted.size());
    for (int row = 0; row < wantedCount; ++row)
    {
        const auto at = [&wanted](int index) -> Node&
        {
            return *wanted[static_cast<std::size_t>(index)];
        };
        if (!shownKeys.contains(at(row).getKey()))
        {
            // A run of new rows comes in one insertion.
            int last = row;
            while (last + 1 < wantedCount && !shownKeys.contains(at(last + 1).getKey()))
                ++last;
            std::vector<std::unique_ptr<Node>> run;
            for (int index = row; index <= last; ++index)
                run.push_back(std::move(wanted[static_cast<std::size_t>(index)]));
            beginInsertRows(parent, row, last);
            shown.insertChildren(row, std::move(run));
            endInsertRows();
            for (int index = row; index <= last; ++index)
                noteUnfolded(shown.getChild(index));
            row = last;
            continue;
        }
        if (shown.getChild(row).getKey() != at(row).getKey())
        {
            // Rows before this one are in place, so the row that belongs here comes from below.
            const int from = shown.findChild(at(row).getKey(), row + 1);
            COMMON_CHECK(from > row);
            beginMoveRows(parent, from, from, parent, row);
            shown.moveChild(from, row);
            endMoveRows();
        }
        update(parent, shown.getChild(row), at(row));
    }
    COMMON_POSTCONDITION(shown.getChildCount() == wantedCount);
}

void CExplorerItemModel::removeUnwanted(const QModelIndex& parent, Node& shown,
                                        const std::vector<std::unique_ptr<Node>>& wanted)
{
    std::unordered_set<std::wstring> wantedKeys;
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
        shown.removeChildren(row, last);
        endRemoveRows();
    }
}

void CExplorerItemModel::update(const QModelIndex& parent, Node& shown, Node& fresh)
{
    const QModelIndex index = this->index(shown.getRow(), 0, parent);
    if (shown.getKind() != Kind::Entity)
        mergeChildren(index, shown, fresh);
    if (shown.getDisplay() == fresh.getDisplay())
        return;
    if (shown.getDisplay().expanded != fresh.getDisplay().expanded)
        foldChanges_.push_back(&shown);
    shown.setDisplay(fresh.getDisplay());
    Q_EMIT dataChanged(index, index);
}

void CExplorerItemModel::noteUnfolded(const Node& inserted)
{
    if (!isFoldable(inserted))
        return;
    if (inserted.getDisplay().expanded)
        foldChanges_.push_back(&inserted);
    for (int row = 0; row < inserted.getChildCount(); ++row)
        noteUnfolded(inserted.getChild(row));
}

void CExplorerItemModel::indexEntities()
{
    entities_.clear();
    for (int group = 0; group < root_->getChildCount(); ++group)
    {
        const Node& groupNode = root_->getChild(group);
        for (int subgroup = 0; subgroup < groupNode.getChildCount(); ++subgroup)
        {
            const Node& subgroupNode = groupNode.getChild(subgroup);
            for (int entity = 0; entity < subgroupNode.getChildCount(); ++entity)
            {
                const Node& entityNode = subgroupNode.getChild(entity);
                entities_.emplace(entityNode.getEntity(), &entityNode);
            }
        }
    }
}

CExplorerTreeNode& CExplorerItemModel::nodeOrRoot(const QModelIndex& index) const
{
    if (!index.isValid())
        return *root_;
    COMMON_PRECONDITION(index.model() == this);
    return *static_cast<Node*>(index.internalPointer());
}

} // namespace aec::desktop
