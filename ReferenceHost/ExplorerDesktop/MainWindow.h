#pragma once

#include "ExplorerDesktop/ContextMenuBuilder.h"
#include "aec/Topic.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QSize>
#include <QString>

class QLineEdit;
#include <boost/signals2/connection.hpp>
#include <functional>
#include <memory>
#include <vector>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::desktop
{

class CCommandRunner;
class CDocumentArea;
class CExplorerItemDelegate;
class CExplorerItemModel;
class CExplorerSelectionModel;
class CExplorerTreeView;
class CGroupingBar;
class CHostDialogs;
class CStatusCounts;
class CSystemClipboardBridge;
class CTopicDropHandler;

// The desktop program's window over an explorer session: the explorer's tree with the grouping
// bar of the group the user works in, the opened entities beside it, the File and Edit menus, and
// the status line. Every command goes through the session's GUI, panel or controller as the host
// application's own would; a command that fails is reported in a message box and changes nothing.
class CMainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    static constexpr QSize initialSize{1100, 720};

    explicit CMainWindow(host::CExplorerSession& session, QWidget* parent = nullptr);
    ~CMainWindow() override;

    // File > Open and Save with a chosen file; false when it failed (and was reported).
    bool openProject(const QString& path);
    bool saveProject(const QString& path);
    // Names the window after what it shows; an empty path is the sample project.
    void setProjectPath(const QString& path);

    CCommandRunner& getCommandRunner() noexcept { return *runner_; }
    CExplorerItemModel& getModel() noexcept { return *model_; }
    CExplorerSelectionModel& getSelectionModel() noexcept { return *selection_; }
    CExplorerTreeView& getTreeView() noexcept { return *tree_; }
    CGroupingBar& getGroupingBar() noexcept { return *groupingBar_; }
    CDocumentArea& getDocumentArea() noexcept { return *documents_; }
    QLineEdit& getFilterBox() noexcept { return *filterBox_; }
    CExplorerItemDelegate& getItemDelegate() noexcept { return *delegate_; }
    CStatusCounts& getStatusCounts() noexcept { return *counts_; }
    // The menus' actions, by their object names ("undo", "delete", "import", ...), for tests.
    QAction& getAction(const QString& name) const;

    // What the user answers to "Save the changes?" before the window closes or opens another
    // project: Save, Discard or Cancel. A message box by default; tests answer without one.
    using UnsavedChangesQuestion = std::function<QMessageBox::StandardButton(const QString& action)>;
    void setUnsavedChangesQuestion(UnsavedChangesQuestion question)
    {
        askAboutUnsavedChanges_ = std::move(question);
    }

protected:
    // Closing (the window's close button, File > Quit, Ctrl+Q) asks before unsaved changes are lost.
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenus();
    QAction* addAction(QMenu& menu, const QString& name, const QString& text, const QKeySequence& shortcut);
    QAction* addCommandAction(QMenu& menu, const QString& name, const QString& text,
                              const QKeySequence& shortcut, int command);
    void updateActions();
    void showFailure(const QString& message);
    void showContextMenu(const QPoint& position);
    // The explorer's menu for the selection, or a group's own for a group or subgroup row.
    void showExplorerContextMenu(const QPoint& position);
    void showGroupContextMenu(const QModelIndex& itemIndex, const QPoint& position);
    // For Shift+F10 and the menu key: the menu of the current row, shown beside it.
    void showContextMenuOfCurrent();
    ContextMenuShortcuts explorerMenuShortcuts() const;
    QWidget* makeExplorerPanel();
    void makeViewMenu();
    void showOpenFailure(const QString& path, const QString& failure);
    void openFromDialog();
    // False when nothing was saved (the user cancelled the file dialog, or the save failed).
    bool saveFromDialog(bool chooseFile);
    // True when the project may be dropped: nothing is unsaved, or the user saved or discarded it.
    bool mayDropProject(const QString& action);
    void openEntity(const QModelIndex& index);
    void renameSelected();
    // Deletes the selected topics after asking, or runs the explorer's delete for anything else.
    void deleteSelected();
    // The selected entities when every one of them is a topic, else nothing.
    std::vector<TopicId> selectedTopics() const;
    // Rename and delete items for a selection of topics, which the host manages itself.
    void addTopicActions(QMenu& menu);
    // Gives the open project's document the window's property context, unless it has one.

    host::CExplorerSession& session_;
    QString projectPath_;
    CCommandRunner* runner_;
    CExplorerItemModel* model_;
    CExplorerSelectionModel* selection_;
    CExplorerTreeView* tree_;
    CGroupingBar* groupingBar_;
    CDocumentArea* documents_;
    CHostDialogs* dialogs_;
    QLineEdit* filterBox_ = nullptr;
    CExplorerItemDelegate* delegate_;
    std::unique_ptr<CTopicDropHandler> topicDrop_;
    CSystemClipboardBridge* clipboardBridge_;
    CStatusCounts* counts_;
    boost::signals2::scoped_connection status_;
    UnsavedChangesQuestion askAboutUnsavedChanges_;
};

} // namespace aec::desktop
