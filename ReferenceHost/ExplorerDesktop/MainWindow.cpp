#include "ExplorerDesktop/MainWindow.h"

#include "AecApp/CutCopyPasteContextMenuItems.h"
#include "AecApp/DeleteCommandMenuItems.h"
#include "AecApp/EditPropertiesMenuItems.h"
#include "AecModel/Project.h"
#include "AecModel/ProjectFile.h"
#include "AecModel/UndoStepLabel.h"
#include "Common/Check.h"
#include "Common/Exception.h"
#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/ContextMenuBuilder.h"
#include "ExplorerDesktop/DocumentArea.h"
#include "ExplorerDesktop/ExplorerItemDelegate.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerSelectionModel.h"
#include "ExplorerDesktop/ExplorerTreeView.h"
#include "ExplorerDesktop/GroupContextMenu.h"
#include "ExplorerDesktop/GroupingBar.h"
#include "ExplorerDesktop/HostDialogs.h"
#include "ExplorerDesktop/OpenFailureDialog.h"
#include "ExplorerDesktop/StatusCounts.h"
#include "ExplorerDesktop/SystemClipboardBridge.h"
#include "ExplorerDesktop/TopicDropHandler.h"
#include "HostFrame/CurrentTopicItem.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "HostFrame/StatusService.h"
#include "HostFrame/TopicEditor.h"
#include "HostServices/HostServices.h"
#include "ProjectExplorerLib/ProjectExplorerContextMenuItemsProvider.h"
#include "aec/Commands.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>

namespace aec::desktop
{

namespace
{

// The property that ties a menu action to the GUI command it runs.
constexpr const char* commandProperty = "guiCommand";
// How long typing in the filter box pauses before the tree follows it.
constexpr std::chrono::milliseconds filterTypingPause{150};

} // namespace

CMainWindow::CMainWindow(host::CExplorerSession& session, QWidget* parent)
    : QMainWindow(parent), session_(session), runner_(new CCommandRunner(this)),
      model_(new CExplorerItemModel(session_, *runner_, this)),
      selection_(new CExplorerSelectionModel(*model_, session_.getPanel(), *runner_, this)),
      tree_(new CExplorerTreeView(*model_, *selection_, session_.getPanel(), *runner_)),
      groupingBar_(new CGroupingBar(session_.getGui(), *runner_)), documents_(new CDocumentArea()),
      dialogs_(new CHostDialogs(session_.getHostServices(), *this)),
      delegate_(new CExplorerItemDelegate(session_, this)),
      topicDrop_(std::make_unique<CTopicDropHandler>(*model_, session_, *runner_)),
      clipboardBridge_(new CSystemClipboardBridge(session_.getHostServices().getClipboard(),
                                                  *QGuiApplication::clipboard(), *runner_, this)),
      counts_(new CStatusCounts(*model_, *selection_))
{
    auto* const splitter = new QSplitter(this);
    splitter->addWidget(makeExplorerPanel());
    splitter->addWidget(documents_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({initialSize.width() / 3, initialSize.width() * 2 / 3});
    setCentralWidget(splitter);
    statusBar()->addPermanentWidget(counts_);
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
    connect(tree_, &QAbstractItemView::activated, this,
            [this](const QModelIndex& index) { openEntity(tree_->toItemModel(index)); });
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
    askAboutUnsavedChanges_ = [this](const QString& action)
    {
        return QMessageBox::question(
            this, tr("Unsaved changes"),
            tr("The project has changes that are not saved, and %1 loses them. Save them first?").arg(action),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    };
    setProjectPath(QString());
    updateActions();
    // The tree is where the user works; the filter box is only the first widget in tab order.
    tree_->setFocus();
}

CMainWindow::~CMainWindow()
{
    // Closing the window still commits a name being edited, through the model, which outlives
    // this body; what this window does in answer must not run on a window half destroyed.
    disconnect(runner_, nullptr, this, nullptr);
    disconnect(model_, nullptr, this, nullptr);
    disconnect(selection_, nullptr, this, nullptr);
    tree_->setDropHandler(nullptr);
    status_.disconnect();
    session_.getHostServices().getProxyAppGui().setOpenCallback(nullptr);
}

bool CMainWindow::openProject(const QString& path)
{
    // A file that does not read is the user's to mend, so the user learns where reading stopped;
    // any other failure is the runner's to report.
    std::optional<QString> unreadable;
    const bool opened = runner_->run(
        [this, &path, &unreadable]
        {
            std::unique_ptr<model::CProject> project;
            try
            {
                project = model::CProjectFile::load(std::filesystem::path(path.toStdWString()));
            }
            catch (const common::EException& failure)
            {
                unreadable = QString::fromUtf8(failure.what());
                return;
            }
            session_.open(std::move(project));
        });
    if (unreadable)
        showOpenFailure(path, *unreadable);
    if (!opened || unreadable)
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
    // [*] is where Qt shows the modified marker while windowModified is set.
    setWindowTitle(tr("%1[*] - Project explorer").arg(shown));
    setWindowModified(session_.hasUnsavedChanges());
}

void CMainWindow::closeEvent(QCloseEvent* event)
{
    if (mayDropProject(tr("closing")))
        event->accept();
    else
        event->ignore();
}

bool CMainWindow::mayDropProject(const QString& action)
{
    if (!session_.hasUnsavedChanges())
        return true;
    switch (askAboutUnsavedChanges_(action))
    {
    case QMessageBox::Save:
        return saveFromDialog(false);
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
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
    // Topics are deleted by the host itself, everything else by the explorer's command.
    connect(addAction(edit, "delete", tr("&Delete"), QKeySequence::Delete), &QAction::triggered, this,
            &CMainWindow::deleteSelected);
    edit.addSeparator();
    connect(addAction(edit, "rename", tr("Re&name"), QKeySequence(Qt::Key_F2)), &QAction::triggered, this,
            &CMainWindow::renameSelected);
    QAction* const properties =
        addCommandAction(edit, "properties", tr("P&roperties..."), QKeySequence(), commands::editProperties);
    properties->setShortcuts({QKeySequence(Qt::ALT | Qt::Key_Return), QKeySequence(Qt::ALT | Qt::Key_Enter)});
    connect(&edit, &QMenu::aboutToShow, this, &CMainWindow::updateActions);
    makeViewMenu();
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
        if (command.toInt() == commands::editProperties)
            enabled = enabled && session_.getEntityController().canEditProperties(selectedList);
        action->setEnabled(enabled);
    }

    QAction& undo = getAction("undo");
    QAction& redo = getAction("redo");
    // Labels for people, made from what each step changed; the steps' own names are the library's.
    const auto label = [this, hasProject](bool undoSide)
    {
        if (!hasProject)
            return QString();
        const auto& steps =
            undoSide ? session_.getUndoHistory().getUndoSteps() : session_.getUndoHistory().getRedoSteps();
        return steps.empty()
                   ? QString()
                   : QString::fromStdString(model::undoStepLabel(steps.back(), session_.getProject()));
    };
    const QString undoName = label(true);
    const QString redoName = label(false);
    setWindowModified(session_.hasUnsavedChanges());
    undo.setText(undoName.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undoName));
    undo.setEnabled(!undoName.isEmpty());
    redo.setText(redoName.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redoName));
    redo.setEnabled(!redoName.isEmpty());

    const QModelIndex single =
        selected.size() == 1 ? model_->indexOfEntity(*selected.begin()) : QModelIndex();
    getAction("rename").setEnabled(single.isValid() && (model_->flags(single) & Qt::ItemIsEditable));
    // The explorer's delete does nothing without a selection; say so by greying.
    getAction("delete").setEnabled(
        hasProject && !selected.empty() &&
        (gui.canRunCommand(commands::deleteSelection) || !selectedTopics().empty()));
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
    const QModelIndex itemIndex = tree_->toItemModel(tree_->indexAt(position));
    const auto kind =
        static_cast<CExplorerTreeNode::Kind>(itemIndex.data(CExplorerItemModel::KindRole).toInt());
    if (itemIndex.isValid() && kind != CExplorerTreeNode::Kind::Entity)
        showGroupContextMenu(itemIndex, position);
    else
        showExplorerContextMenu(position);
}

void CMainWindow::showExplorerContextMenu(const QPoint& position)
{
    host::CGui& gui = session_.getGui();
    if (!runner_->run(
            [&gui, position] {
                gui.requestContextMenu(MbCartPoint{double(position.x()), double(position.y())});
            }))
        return;
    QMenu menu;
    std::vector<std::size_t> currentTopic;
    if (const auto topic = host::currentTopicItem(session_, gui.getLastContextMenu()))
        currentTopic = {topic->first, topic->second};
    fillContextMenu(menu, gui.getLastContextMenu(), explorerMenuShortcuts(), currentTopic);
    addTopicActions(menu);
    QAction* const chosen = menu.exec(tree_->viewport()->mapToGlobal(position));
    if (chosen == nullptr || contextMenuPath(*chosen).empty())
        return;
    const std::vector<std::size_t> path = contextMenuPath(*chosen);
    runner_->run([&gui, &path] { gui.chooseContextMenuItem(path); });
}

void CMainWindow::showGroupContextMenu(const QModelIndex& itemIndex, const QPoint& position)
{
    CGroupContextMenu menu(itemIndex, *model_, *tree_, session_, *runner_);
    menu.exec(tree_->viewport()->mapToGlobal(position));
    updateActions();
}

void CMainWindow::showContextMenuOfCurrent()
{
    const QModelIndex current = tree_->currentIndex();
    tree_->scrollTo(current);
    const QRect row = tree_->visualRect(current);
    // Beside the row's text, as a right click on it would; the tree's corner without a row.
    showContextMenu(row.isValid() ? QPoint(row.left() + row.height(), row.center().y()) : QPoint(0, 0));
}

ContextMenuShortcuts CMainWindow::explorerMenuShortcuts() const
{
    // The explorer's items run the same commands as the Edit menu, under the same keys.
    const auto keyOf = [this](const char* action)
    {
        return getAction(action).shortcut();
    };
    return {
        {std::string(CCutCopyPasteContextMenuItems::cutIdentifier), keyOf("cut")},
        {std::string(CCutCopyPasteContextMenuItems::copyIdentifier), keyOf("copy")},
        {std::string(CCutCopyPasteContextMenuItems::pasteIdentifier), keyOf("paste")},
        {std::string(CDeleteCommandMenuItems::identifier), keyOf("delete")},
        {std::string(CEditPropertiesMenuItems::identifier), keyOf("properties")},
        {std::string(project_explorer::CProjectExplorerContextMenuItemsProvider::renameIdentifier),
         keyOf("rename")},
    };
}

QWidget* CMainWindow::makeExplorerPanel()
{
    filterBox_ = new QLineEdit();
    filterBox_->setObjectName("filter");
    filterBox_->setPlaceholderText(tr("Filter by name"));
    filterBox_->setClearButtonEnabled(true);
    // Filtering 100,000 names takes a moment, so the tree follows the box once the typing pauses,
    // or at once on Enter; clearing it gives the tree back at once, which costs next to nothing.
    auto* const typingPause = new QTimer(filterBox_);
    typingPause->setSingleShot(true);
    typingPause->setInterval(filterTypingPause);
    const auto applyFilter = [this, typingPause]
    {
        typingPause->stop();
        tree_->setNameFilter(filterBox_->text());
    };
    connect(typingPause, &QTimer::timeout, this, applyFilter);
    connect(filterBox_, &QLineEdit::returnPressed, this, applyFilter);
    connect(filterBox_, &QLineEdit::textChanged, this,
            [typingPause, applyFilter](const QString& text)
            {
                if (text.isEmpty())
                    applyFilter();
                else
                    typingPause->start();
            });
    // Escape gives the tree back as the user left it.
    auto* const clear =
        new QShortcut(QKeySequence(Qt::Key_Escape), filterBox_, filterBox_, &QLineEdit::clear);
    clear->setContext(Qt::WidgetShortcut);

    tree_->setItemDelegate(delegate_);
    tree_->setDropHandler(topicDrop_.get());
    auto* const contextMenuKey = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), tree_);
    contextMenuKey->setContext(Qt::WidgetShortcut);
    connect(contextMenuKey, &QShortcut::activated, this, &CMainWindow::showContextMenuOfCurrent);

    auto* const panel = new QWidget();
    auto* const layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(filterBox_);
    layout->addWidget(groupingBar_);
    layout->addWidget(tree_, 1);
    return panel;
}

void CMainWindow::makeViewMenu()
{
    QMenu& view = *menuBar()->addMenu(tr("&View"));
    connect(addAction(view, "findByName", tr("&Filter by name"), QKeySequence::Find), &QAction::triggered,
            this,
            [this]
            {
                filterBox_->setFocus();
                filterBox_->selectAll();
            });
    view.addSeparator();
    QAction* const expandAll = addAction(view, "expandAll", tr("&Expand all"), QKeySequence());
    expandAll->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Plus),
                             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Equal)});
    connect(expandAll, &QAction::triggered, this, [this] { tree_->unfoldAll(QModelIndex()); });
    connect(addAction(view, "collapseAll", tr("&Collapse all"),
                      QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Minus)),
            &QAction::triggered, this, [this] { tree_->foldAll(QModelIndex()); });
}

void CMainWindow::showOpenFailure(const QString& path, const QString& failure)
{
    auto* const box = new COpenFailureDialog(path, failure, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void CMainWindow::openFromDialog()
{
    if (!mayDropProject(tr("opening another project")))
        return;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open project"), projectPath_,
                                                      tr("Projects (*.json);;All files (*)"));
    if (!path.isEmpty())
        openProject(path);
}

bool CMainWindow::saveFromDialog(bool chooseFile)
{
    QString path = projectPath_;
    if (chooseFile || path.isEmpty())
        path = QFileDialog::getSaveFileName(this, tr("Save project"), projectPath_, tr("Projects (*.json)"));
    return !path.isEmpty() && saveProject(path);
}

void CMainWindow::openEntity(const QModelIndex& index)
{
    const CExplorerTreeNode* const node = model_->nodeAt(index);
    if (node == nullptr || node->getKind() != CExplorerTreeNode::Kind::Entity)
        return;
    const EntityIdList entities{node->getEntity()};
    runner_->run([this, &entities] { session_.getEntityController().open(entities); });
}

std::vector<TopicId> CMainWindow::selectedTopics() const
{
    if (!session_.hasProject())
        return {};
    const host::CTopicEditor editor(session_.getProject());
    std::vector<TopicId> topics;
    for (const EntityId& entity : selection_->getSelectedEntities())
    {
        if (!editor.isTopic(entity))
            return {};
        topics.emplace_back(entity.uuid());
    }
    return topics;
}

void CMainWindow::addTopicActions(QMenu& menu)
{
    // The explorer's menu has no items for topics, which are no type of its own; the host adds
    // the ones it carries out itself, under the Edit menu's keys.
    const std::vector<TopicId> topics = selectedTopics();
    if (topics.empty())
        return;
    menu.addSeparator();
    if (topics.size() == 1)
    {
        QAction* const rename = menu.addAction(tr("Re&name topic"), this, &CMainWindow::renameSelected);
        rename->setObjectName("renameTopic");
        rename->setShortcut(getAction("rename").shortcut());
        rename->setShortcutVisibleInContextMenu(true);
    }
    QAction* const remove = menu.addAction(tr("&Delete topic"), this, &CMainWindow::deleteSelected);
    remove->setObjectName("deleteTopic");
    remove->setShortcut(getAction("delete").shortcut());
    remove->setShortcutVisibleInContextMenu(true);
}

void CMainWindow::deleteSelected()
{
    const std::vector<TopicId> topics = selectedTopics();
    if (topics.empty())
    {
        runner_->run([this] { session_.getGui().runCommand(commands::deleteSelection); });
        return;
    }
    runner_->run(
        [this, &topics]
        {
            host::CTopicEditor(session_.getProject())
                .removeAfterAsking(topics, session_.getHostServices().getDialogService());
        });
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
