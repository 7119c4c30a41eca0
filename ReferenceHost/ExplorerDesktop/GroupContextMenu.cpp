#include "ExplorerDesktop/GroupContextMenu.h"

#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerTreeView.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "HostFrame/TopicEditor.h"
#include "aec/Commands.h"
#include "aec/EntityTypes.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <QPersistentModelIndex>
#include <algorithm>
#include <array>

namespace aec::desktop
{

namespace
{

struct CreatableKind
{
    EntityCollection collection;
    const EntityTypeId& (*type)();
    const char* text;
};

// The kinds the explorer creates through the host's type handlers, each in its own group.
constexpr std::array<CreatableKind, 4> creatableKinds{{
    {EntityCollection::Sheets, &entity_types::sheet, QT_TRANSLATE_NOOP("GroupContextMenu", "New &sheet")},
    {EntityCollection::Tables, &entity_types::table, QT_TRANSLATE_NOOP("GroupContextMenu", "New &table")},
    {EntityCollection::Assemblies, &entity_types::assembly,
     QT_TRANSLATE_NOOP("GroupContextMenu", "New &assembly")},
    {EntityCollection::Materials, &entity_types::material,
     QT_TRANSLATE_NOOP("GroupContextMenu", "New &material")},
}};

const ProjectExplorerGroupInfo* groupInfo(const std::optional<common::UUID>& group)
{
    const std::vector<ProjectExplorerGroupInfo>& groups = projectExplorerGroups();
    const auto found = std::ranges::find_if(groups, [&group](const ProjectExplorerGroupInfo& info)
                                            { return group && info.id == *group; });
    return found == groups.end() ? nullptr : &*found;
}

} // namespace

CGroupContextMenu::CGroupContextMenu(const QModelIndex& itemIndex, CExplorerItemModel& model,
                                     CExplorerTreeView& tree, host::CExplorerSession& session,
                                     CCommandRunner& runner, QWidget* parent)
    : QMenu(parent), model_(model), tree_(tree), session_(session), runner_(runner)
{
    addNewEntityAction(itemIndex);
    const ProjectExplorerGroupInfo* const info = groupInfo(model_.groupIdAt(itemIndex));
    if (info != nullptr && info->collection == EntityCollection::Tables)
        addCommandAction("importTable", tr("&Import table..."), QKeySequence(), commands::importTable);
    if (!actions().isEmpty())
        addSeparator();

    // The row may go while the menu is open (a rebuild), and its subgroups fold one by one.
    const QPersistentModelIndex row(itemIndex);
    connect(addNamedAction("expandAll", tr("&Expand all"), QKeySequence(Qt::Key_Asterisk)),
            &QAction::triggered, this,
            [this, row]
            {
                if (row.isValid())
                    tree_.unfoldAll(row);
            });
    connect(addNamedAction("collapseAll", tr("&Collapse all"), QKeySequence()), &QAction::triggered, this,
            [this, row]
            {
                if (row.isValid())
                    tree_.foldAll(row);
            });
    addSeparator();
    addCommandAction("paste", tr("&Paste"), QKeySequence::Paste, commands::paste);
}

CGroupContextMenu::~CGroupContextMenu() = default;

void CGroupContextMenu::addNewEntityAction(const QModelIndex& itemIndex)
{
    const ProjectExplorerGroupInfo* const info = groupInfo(model_.groupIdAt(itemIndex));
    if (info == nullptr)
        return;
    if (info->collection == EntityCollection::Topics)
    {
        addNewTopicAction();
        return;
    }
    const auto kind = std::ranges::find_if(creatableKinds, [info](const CreatableKind& creatable)
                                           { return creatable.collection == info->collection; });
    if (kind == creatableKinds.end())
        return;
    const EntityTypeId& type = kind->type();
    QAction* const action = addNamedAction("newEntity", tr(kind->text), QKeySequence());
    action->setEnabled(session_.hasProject());
    connect(action, &QAction::triggered, this,
            [this, &type]
            {
                EntityId created;
                if (!runner_.run([this, &type, &created]
                                 { session_.getEntityController().createEntity(type, created); }))
                    return;
                // As in the file browsers users know, a new entity's name opens for editing.
                tree_.startRename(created);
            });
}

void CGroupContextMenu::addNewTopicAction()
{
    QAction* const action = addNamedAction("newEntity", tr("New &topic"), QKeySequence());
    action->setEnabled(session_.hasProject());
    connect(action, &QAction::triggered, this,
            [this]
            {
                TopicId created;
                // Topics are no type of the explorer's: the host makes them, as one undo step.
                if (!runner_.run([this, &created]
                                 { created = host::CTopicEditor(session_.getProject()).create(); }))
                    return;
                tree_.startRename(EntityId(created.uuid()));
            });
}

void CGroupContextMenu::addCommandAction(const QString& name, const QString& text,
                                         const QKeySequence& shortcut, int command)
{
    host::CGui& gui = session_.getGui();
    QAction* const action = addNamedAction(name, text, shortcut);
    action->setEnabled(session_.hasProject() && gui.canRunCommand(command));
    connect(action, &QAction::triggered, this,
            [this, &gui, command] { runner_.run([&gui, command] { gui.runCommand(command); }); });
}

QAction* CGroupContextMenu::addNamedAction(const QString& name, const QString& text,
                                           const QKeySequence& shortcut)
{
    QAction* const action = addAction(text);
    action->setObjectName(name);
    // Shown as a reminder: the same key works in the tree or the window without the menu.
    action->setShortcut(shortcut);
    action->setShortcutVisibleInContextMenu(true);
    return action;
}

} // namespace aec::desktop
