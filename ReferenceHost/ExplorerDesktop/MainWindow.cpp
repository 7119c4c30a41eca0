#include "ExplorerDesktop/MainWindow.h"

#include "AecModel/Project.h"
#include "Common/Check.h"
#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/ContextMenuBuilder.h"
#include "ExplorerDesktop/DocumentArea.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerSelectionModel.h"
#include "ExplorerDesktop/ExplorerTreeView.h"
#include "ExplorerDesktop/GroupingBar.h"
#include "ExplorerDesktop/HostDialogs.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "HostFrame/StatusService.h"
#include "HostServices/HostServices.h"
#include "aec/Commands.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace aec::desktop
{

namespace
{

// The property that ties a menu action to the GUI command it runs.
constexpr const char* commandProperty = "guiCommand";

} // namespace

CMainWindow::CMainWindow(host::CExplorerSession& session, QWidget* parent)
    : QMainWindow(parent), session_(session), runner_(new CCommandRunner(this)),
      model_(new CExplorerItemModel(session_, *runner_, this)),
      selection_(new CExplorerSelectionModel(*model_, session_.getPanel(), *runner_, this)),
      tree_(new CExplorerTreeView(*model_, *selection_, session_.getPanel())),
      groupingBar_(new CGroupingBar(session_.getGui(), *runner_)), documents_(new CDocumentArea()),
      dialogs_(new CHostDialogs(session_.getHostServices(), *this))
{
    auto* const explorerPanel = new QWidget();
    auto* const explorerLayout = new QVBoxLayout(explorerPanel);
    explorerLayout->setContentsMargins(0, 0, 0, 0);
    explorerLayout->addWidget(groupingBar_);
    explorerLayout->addWidget(tree_, 1);
    auto* const splitter = new QSplitter(this);
    splitter->addWidget(explorerPanel);
    splitter->addWidget(documents_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({initialSize.width() / 3, initialSize.width() * 2 / 3});
    setCentralWidget(splitter);
    makeMenus();
    resize(initialSize);

    groupingBar_->showGroup(projectExplorerGroups().front().id);
    connect(selection_, &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current)
            {
                if (const std::optional<common::UUID> group = model_->groupIdAt(current))
                    groupingBar_->showGroup(*group);
            });
    connect(tree_, &QWidget::customContextMenuRequested, this, &CMainWindow::showContextMenu);
    connect(tree_, &QAbstractItemView::activated, this, &CMainWindow::openEntity);
    connect(runner_, &CCommandRunner::failed, this, &CMainWindow::showFailure);
    connect(runner_, &CCommandRunner::finished, this, &CMainWindow::updateActions);
    // Rows that go while the model follows the explorer take their selection with them, one run at
    // a time; the actions follow once, when the model has followed.
    connect(selection_, &QItemSelectionModel::selectionChanged, this,
            [this]
            {
                if (!model_->isSynchronizing())
                    updateActions();
            });
    connect(model_, &CExplorerItemModel::synchronized, this,
            [this]
            {
                model::CSessionManager& sessionManager = session_.getHostServices().getSessionManager();
                documents_->refresh(sessionManager.hasCurrentProject() ? &sessionManager.getCurrentProject()
                                                                       : nullptr);
                updateActions();
            });

    session_.getHostServices().getProxyAppGui().setOpenCallback(
        [this](const EntityIdList& entities)
        {
            model::CSessionManager& sessionManager = session_.getHostServices().getSessionManager();
            if (sessionManager.hasCurrentProject())
                documents_->openEntities(entities, sessionManager.getCurrentProject());
        });
    status_ = session_.getStatusService().statusSignal().connect(
        [this](const std::wstring& message) { statusBar()->showMessage(QString::fromStdWString(message)); });
    if (const std::wstring& last = session_.getStatusService().getLastMessage(); !last.empty())
        statusBar()->showMessage(QString::fromStdWString(last));
    setProjectPath(QString());
    updateActions();
}

CMainWindow::~CMainWindow()
{
    // Closing the window still commits a name being edited, through the model, which outlives
    // this body; what this window does in answer must not run on a window half destroyed.
    disconnect(runner_, nullptr, this, nullptr);
    disconnect(model_, nullptr, this, nullptr);
    disconnect(selection_, nullptr, this, nullptr);
    status_.disconnect();
    session_.getHostServices().getProxyAppGui().setOpenCallback(nullptr);
}

bool CMainWindow::openProject(const QString& path)
{
    if (!runner_->run([this, &path] { session_.load(std::filesystem::path(path.toStdWString())); }))
        return false;
    setProjectPath(path);
    return true;
}

bool CMainWindow::saveProject(const QString& path)
{
    if (!runner_->run([this, &path] { session_.save(std::filesystem::path(path.toStdWString())); }))
        return false;
    setProjectPath(path);
    statusBar()->showMessage(tr("Saved %1").arg(QFileInfo(path).fileName()));
    return true;
}

void CMainWindow::setProjectPath(const QString& path)
{
    projectPath_ = path;
    const QString shown = path.isEmpty() ? tr("Sample project") : QFileInfo(path).fileName();
    setWindowTitle(tr("%1 - Project explorer").arg(shown));
}

QAction& CMainWindow::getAction(const QString& name) const
{
    auto* const action = findChild<QAction*>(name);
    COMMON_PRECONDITION(action != nullptr);
    return *action;
}

void CMainWindow::makeMenus()
{
    QMenu& file = *menuBar()->addMenu(tr("&File"));
    connect(addAction(file, "open", tr("&Open..."), QKeySequence::Open), &QAction::triggered, this,
            &CMainWindow::openFromDialog);
    connect(addAction(file, "save", tr("&Save"), QKeySequence::Save), &QAction::triggered, this,
            [this] { saveFromDialog(false); });
    connect(addAction(file, "saveAs", tr("Save &As..."), QKeySequence::SaveAs), &QAction::triggered, this,
            [this] { saveFromDialog(true); });
    file.addSeparator();
    // The host's import file dialog asks for the file when the command runs.
    addCommandAction(file, "import", tr("&Import table..."), QKeySequence(), commands::importTable);
    file.addSeparator();
    connect(addAction(file, "quit", tr("&Quit"), QKeySequence::Quit), &QAction::triggered, this,
            &QWidget::close);

    QMenu& edit = *menuBar()->addMenu(tr("&Edit"));
    connect(addAction(edit, "undo", tr("&Undo"), QKeySequence::Undo), &QAction::triggered, this,
            [this] { runner_->run([this] { session_.getUndoHistory().undo(); }); });
    connect(addAction(edit, "redo", tr("&Redo"), QKeySequence::Redo), &QAction::triggered, this,
            [this] { runner_->run([this] { session_.getUndoHistory().redo(); }); });
    edit.addSeparator();
    addCommandAction(edit, "cut", tr("Cu&t"), QKeySequence::Cut, commands::cut);
    addCommandAction(edit, "copy", tr("&Copy"), QKeySequence::Copy, commands::copy);
    addCommandAction(edit, "paste", tr("&Paste"), QKeySequence::Paste, commands::paste);
    addCommandAction(edit, "delete", tr("&Delete"), QKeySequence::Delete, commands::deleteSelection);
    edit.addSeparator();
    connect(addAction(edit, "rename", tr("Re&name"), QKeySequence(Qt::Key_F2)), &QAction::triggered, this,
            &CMainWindow::renameSelected);
    QAction* const properties =
        addCommandAction(edit, "properties", tr("P&roperties..."), QKeySequence(), commands::editProperties);
    properties->setShortcuts({QKeySequence(Qt::ALT | Qt::Key_Return), QKeySequence(Qt::ALT | Qt::Key_Enter)});
    connect(&edit, &QMenu::aboutToShow, this, &CMainWindow::updateActions);
}

QAction* CMainWindow::addAction(QMenu& menu, const QString& name, const QString& text,
                                const QKeySequence& shortcut)
{
    QAction* const action = menu.addAction(text);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    return action;
}

QAction* CMainWindow::addCommandAction(QMenu& menu, const QString& name, const QString& text,
                                       const QKeySequence& shortcut, int command)
{
    QAction* const action = addAction(menu, name, text, shortcut);
    action->setProperty(commandProperty, command);
    connect(action, &QAction::triggered, this,
            [this, command] { runner_->run([this, command] { session_.getGui().runCommand(command); }); });
    return action;
}

void CMainWindow::updateActions()
{
    const bool hasProject = session_.hasProject();
    const EntityIdSet selected = selection_->getSelectedEntities();
    const EntityIdList selectedList(selected.begin(), selected.end());
    host::CGui& gui = session_.getGui();
    for (QAction* const action : findChildren<QAction*>())
    {
        const QVariant command = action->property(commandProperty);
        if (!command.isValid())
            continue;
        bool enabled = hasProject && gui.canRunCommand(command.toInt());
        // The explorer's delete and properties do nothing without a selection; say so by greying.
        if (command.toInt() == commands::deleteSelection)
            enabled = enabled && !selected.empty();
        if (command.toInt() == commands::editProperties)
            enabled = enabled && session_.getEntityController().canEditProperties(selectedList);
        action->setEnabled(enabled);
    }

    QAction& undo = getAction("undo");
    QAction& redo = getAction("redo");
    const auto name = [](const std::optional<std::string>& step)
    {
        return step ? QString::fromStdString(*step) : QString();
    };
    const QString undoName = hasProject ? name(session_.getUndoHistory().getUndoName()) : QString();
    const QString redoName = hasProject ? name(session_.getUndoHistory().getRedoName()) : QString();
    undo.setText(undoName.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undoName));
    undo.setEnabled(!undoName.isEmpty());
    redo.setText(redoName.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redoName));
    redo.setEnabled(!redoName.isEmpty());

    const QModelIndex single =
        selected.size() == 1 ? model_->indexOfEntity(*selected.begin()) : QModelIndex();
    getAction("rename").setEnabled(single.isValid() && (model_->flags(single) & Qt::ItemIsEditable));
    getAction("save").setEnabled(hasProject);
    getAction("saveAs").setEnabled(hasProject);
}

void CMainWindow::showFailure(const QString& message)
{
    // Not modal to the program: the failed command is over, and the user may go on.
    auto* const box =
        new QMessageBox(QMessageBox::Warning, tr("Project explorer"), message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void CMainWindow::showContextMenu(const QPoint& position)
{
    host::CGui& gui = session_.getGui();
    if (!runner_->run(
            [&gui, position] {
                gui.requestContextMenu(MbCartPoint{double(position.x()), double(position.y())});
            }))
        return;
    QMenu menu;
    fillContextMenu(menu, gui.getLastContextMenu());
    QAction* const chosen = menu.exec(tree_->viewport()->mapToGlobal(position));
    if (chosen == nullptr)
        return;
    const std::vector<std::size_t> path = contextMenuPath(*chosen);
    runner_->run([&gui, &path] { gui.chooseContextMenuItem(path); });
}

void CMainWindow::openFromDialog()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open project"), projectPath_,
                                                      tr("Projects (*.json);;All files (*)"));
    if (!path.isEmpty())
        openProject(path);
}

void CMainWindow::saveFromDialog(bool chooseFile)
{
    QString path = projectPath_;
    if (chooseFile || path.isEmpty())
        path = QFileDialog::getSaveFileName(this, tr("Save project"), projectPath_, tr("Projects (*.json)"));
    if (!path.isEmpty())
        saveProject(path);
}

void CMainWindow::openEntity(const QModelIndex& index)
{
    const CExplorerTreeNode* const node = model_->nodeAt(index);
    if (node == nullptr || node->getKind() != CExplorerTreeNode::Kind::Entity)
        return;
    const EntityIdList entities{node->getEntity()};
    runner_->run([this, &entities] { session_.getEntityController().open(entities); });
}

void CMainWindow::renameSelected()
{
    const EntityIdSet selected = selection_->getSelectedEntities();
    if (selected.size() != 1)
        return;
    // As the context menu's "Rename" does: the document's user interface asks the panel, and the
    // panel asks this window's tree to edit the name in place.
    const EntityId entity = *selected.begin();
    runner_->run([this, &entity] { session_.getEntityController().forwardToGuiHandler(entity); });
}

} // namespace aec::desktop
