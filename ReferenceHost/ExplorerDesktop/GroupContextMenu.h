#pragma once

#include <QMenu>
#include <QModelIndex>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;
class CExplorerItemModel;
class CExplorerTreeView;

// The context menu of a group or subgroup row. The explorer's own menu is about the selected
// entities; a group's is about the group: a new entity of the group's kind where the host can
// make one (a topic in the topics' group), importing a table into the tables, unfolding and folding
// everything below the row, and pasting. Its actions are named ("newEntity", "importTable", "expandAll",
// "collapseAll", "paste") for tests.
class CGroupContextMenu final : public QMenu
{
    Q_OBJECT

public:
    // `itemIndex` is a group or subgroup row of the model. Everything must outlive the menu.
    CGroupContextMenu(const QModelIndex& itemIndex, CExplorerItemModel& model, CExplorerTreeView& tree,
                      host::CExplorerSession& session, CCommandRunner& runner, QWidget* parent = nullptr);
    ~CGroupContextMenu() override;

private:
    void addNewEntityAction(const QModelIndex& itemIndex);
    void addNewTopicAction();
    void addCommandAction(const QString& name, const QString& text, const QKeySequence& shortcut,
                          int command);
    QAction* addNamedAction(const QString& name, const QString& text, const QKeySequence& shortcut);

    CExplorerItemModel& model_;
    CExplorerTreeView& tree_;
    host::CExplorerSession& session_;
    CCommandRunner& runner_;
};

} // namespace aec::desktop
