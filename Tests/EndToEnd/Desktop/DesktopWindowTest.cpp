#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "AecModel/UndoHistory.h"
#include "DesktopTestSupport.h"
#include "ExplorerDesktop/ButtonComboBox.h"
#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/DocumentArea.h"
#include "ExplorerDesktop/EntityPage.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerSelectionModel.h"
#include "ExplorerDesktop/ExplorerTreeView.h"
#include "ExplorerDesktop/GroupContextMenu.h"
#include "ExplorerDesktop/GroupingBar.h"
#include "ExplorerDesktop/MainWindow.h"
#include "ExplorerDesktop/PropertiesDialog.h"
#include "ExplorerDesktop/TableCellsModel.h"
#include "ExplorerDesktop/TableImportPreviewDialog.h"
#include "HostChecks/RefusingProjectObserver.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/GroupingButtons.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "aec/ContextMenuItem.h"
#include "aec/EntityTypes.h"
#include "aec/MbCartPoint.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerSubgroup.h"
#include "aec/TextIds.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>
#include <tuple>

namespace aec::desktop
{

// The main window over a real explorer session on the sample project, shown on Qt's offscreen
// platform: the tree's fold state and selection against the explorer's in both directions, the
// grouping bar, in-place renaming, the Edit menu, error reports, and opened documents.
class DesktopWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        session_ = std::make_unique<host::CExplorerSession>(7);
        session_->open(model::buildSampleProject());
        window_ = std::make_unique<CMainWindow>(*session_);
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void cleanup()
    {
        window_.reset();
        session_.reset();
    }

    void foldStateGoesBothWays()
    {
        CExplorerTreeView& tree = window_->getTreeView();
        CExplorerItemModel& model = window_->getModel();
        CButtonComboBox& criterion = window_->getGroupingBar().getCriterionBox();
        QVERIFY(criterion.chooseValue(
            criterion.itemData(criterion.findData(QString("0")) == 0 ? 1 : 0).toString()));
        tree.expand(model.index(0, 0));
        QVERIFY(group(0).isExpanded());
        tree.expand(model.index(0, 0, model.index(0, 0)));
        QVERIFY(group(0).getSubgroups().begin()->isExpanded());
        tree.collapse(model.index(0, 0));
        QVERIFY(!group(0).isExpanded());
        QVERIFY2(group(0).getSubgroups().begin()->isExpanded(), "a folded group keeps its subgroups' folds");
        session_->getPanel().toggleGroup(0);
        session_->getPanel().toggleSubgroup(0, 1);
        QVERIFY(tree.isExpanded(model.index(1, 0, model.index(0, 0))));

        // A group without grouping shows its entities itself, and unfolds them with it.
        tree.expand(model.index(3, 0));
        QVERIFY(group(3).getSubgroups().begin()->isExpanded());
        QVERIFY(model.nodeAt(model.index(0, 0, model.index(3, 0)))->getKind() ==
                CExplorerTreeNode::Kind::Entity);
        VERIFY_EMPTY(foldMismatch(tree, model));
        VERIFY_EMPTY(explorerMismatch(model, session_->getExplorer()));
    }

    void selectionGoesBothWaysAndUnfoldsWhatItShows()
    {
        CExplorerTreeView& tree = window_->getTreeView();
        CExplorerItemModel& model = window_->getModel();
        const QModelIndex rebar = entityIndex(L"Rebar 10");
        tree.selectionModel()->select(rebar, QItemSelectionModel::ClearAndSelect);
        QCOMPARE(session_->getSelection(), EntityIdSet{model.nodeAt(rebar)->getEntity()});
        QVERIFY2(tree.isExpanded(rebar.parent()), "the explorer unfolded the group, and the view too");

        const QModelIndex logo = entityIndex(L"Logo");
        session_->getPanel().changeSelection({model.nodeAt(logo)->getEntity()},
                                             {model.nodeAt(rebar)->getEntity()});
        QCOMPARE(tree.selectionModel()->selectedIndexes(), QModelIndexList{logo});
        QVERIFY(tree.isExpanded(logo.parent()));
        VERIFY_EMPTY(foldMismatch(tree, model));
    }

    void theGroupingBarFollowsTheCurrentGroupAndRegroupsIt()
    {
        CGroupingBar& bar = window_->getGroupingBar();
        CExplorerItemModel& model = window_->getModel();
        const host::GroupingButtonIds sheets = host::groupingButtonsOf(projectExplorerGroups()[0]).value();
        QCOMPARE(bar.getCriterionBox().getButton(),
                 std::optional(host::CGui::Button{sheets.panel, sheets.groupCriterion}));
        QCOMPARE(bar.getCriterionBox().currentData().toString(), QString("0"));
        QCOMPARE(bar.getSortOrderBox().count(), 2);

        window_->getTreeView().setCurrentIndex(entityIndex(L"Door schedule"));
        const host::GroupingButtonIds tables = host::groupingButtonsOf(projectExplorerGroups()[1]).value();
        QCOMPARE(bar.getSortOrderBox().getButton(),
                 std::optional(host::CGui::Button{tables.panel, tables.sortOrder}));

        const int topic = bar.getCriterionBox().findData(QString("0")) == 0 ? 1 : 0;
        QVERIFY(bar.getCriterionBox().chooseValue(bar.getCriterionBox().itemData(topic).toString()));
        QVERIFY(model.rowCount(model.index(1, 0)) > 1);
        QCOMPARE(bar.getCriterionBox().currentIndex(), topic);
        QVERIFY(bar.getSortOrderBox().chooseValue("2"));
        VERIFY_EMPTY(explorerMismatch(model, session_->getExplorer()));
        const QStringList descending = subgroupNames(window_->getModel(), 1);
        QVERIFY(bar.getSortOrderBox().chooseValue("1"));
        QStringList ascending = subgroupNames(window_->getModel(), 1);
        std::reverse(ascending.begin(), ascending.end());
        QCOMPARE(ascending, descending);

        // A group without grouping has no buttons.
        window_->getTreeView().setCurrentIndex(entityIndex(L"Logo"));
        QVERIFY(!bar.getCriterionBox().isEnabled());
        QVERIFY(!bar.getCriterionBox().chooseValue("0"));
    }

    void renameStartsInPlaceAndTheEditMenuUndoesIt()
    {
        const QModelIndex door = entityIndex(L"Door 1000");
        const EntityId id = window_->getModel().nodeAt(door)->getEntity();
        window_->getTreeView().selectionModel()->select(door, QItemSelectionModel::ClearAndSelect);
        QAction& rename = window_->getAction("rename");
        QVERIFY(rename.isEnabled());
        QCOMPARE(rename.shortcut(), QKeySequence(Qt::Key_F2));
        rename.trigger();
        QVERIFY(window_->getTreeView().isEditing());

        auto* const editor = window_->getTreeView().findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        editor->setText("Door 1010");
        QTest::keyClick(editor, Qt::Key_Return);
        // The delegate commits the name from the event loop.
        QTRY_COMPARE(QString::fromStdWString(session_->getProject().findEntity(id)->getName()),
                     QString("Door 1010"));
        QVERIFY(!window_->getTreeView().isEditing());

        // The menu speaks of what changed, not of the transaction's name; the title marks the change.
        QAction& undo = window_->getAction("undo");
        QCOMPARE(undo.text(), QString("&Undo Rename door style “Door 1010”"));
        QVERIFY(window_->isWindowModified());
        QVERIFY(window_->windowTitle().contains("[*]"));
        undo.trigger();
        QCOMPARE(QString::fromStdWString(session_->getProject().findEntity(id)->getName()),
                 QString("Door 1000"));
        QCOMPARE(window_->getAction("redo").text(), QString("&Redo Rename door style “Door 1010”"));
        QVERIFY(!undo.isEnabled());
        QVERIFY2(!window_->isWindowModified(), "undone back to the project as it was opened");

        // Entities of groups without grouping are not renamable.
        window_->getTreeView().selectionModel()->select(entityIndex(L"Logo"),
                                                        QItemSelectionModel::ClearAndSelect);
        QVERIFY(!rename.isEnabled());
    }

    void topicsAreMadeRenamedAndDeletedInOneStepEach()
    {
        CExplorerTreeView& tree = window_->getTreeView();
        CExplorerItemModel& model = window_->getModel();
        model::CProject& project = session_->getProject();
        QAction& undo = window_->getAction("undo");
        const QModelIndex topicsGroup = model.index(7, 0);
        QCOMPARE(topicsGroup.data(Qt::EditRole).toString(), QString("Topics"));

        // The group's "New" makes a topic and opens its name for editing.
        CGroupContextMenu menu(topicsGroup, model, tree, *session_, window_->getCommandRunner());
        auto* const make = menu.findChild<QAction*>("newEntity");
        QVERIFY(make != nullptr);
        QCOMPARE(make->text(), QString("New &topic"));
        const std::size_t topicsBefore = project.getProjectTopics().size();
        make->trigger();
        QCOMPARE(project.getProjectTopics().size(), topicsBefore + 1);
        QVERIFY(undo.text().startsWith("&Undo Create topic “"));
        QVERIFY(tree.isEditing());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);

        // F2 on a topic opens its name; Enter commits the name and opens nothing.
        tree.setFocus();
        tree.setCurrentIndex(entityIndex(L"Structure"));
        const EntityId structure = model.nodeAt(entityIndex(L"Structure"))->getEntity();
        const EntityId rebar = model.nodeAt(entityIndex(L"Rebar 8"))->getEntity();
        QTest::keyClick(&tree, Qt::Key_F2);
        QVERIFY2(tree.isEditing(), "F2 renames a topic");
        auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        QVERIFY(editor != nullptr);
        editor->setText("Load-bearing");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(QString::fromStdWString(project.findEntity(structure)->getName()),
                     QString("Load-bearing"));
        QCOMPARE(window_->getDocumentArea().count(), 0);
        QCOMPARE(undo.text(), QString("&Undo Rename topic “Load-bearing”"));

        // Delete asks; its entities keep no topic, and one undo brings topic and members back.
        tree.setCurrentIndex(entityIndex(L"Load-bearing"));
        QVERIFY(window_->getAction("delete").isEnabled());
        onNextDialog<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
        const std::size_t asked = session_->getHostServices().getDialogService().getQuestions().size();
        QTest::keyClick(&tree, Qt::Key_Delete);
        QCOMPARE(session_->getHostServices().getDialogService().getQuestions().size(), asked + 1);
        QVERIFY2(project.findEntity(structure) != nullptr, "answered No, the topic stays");
        // The window's keys work again once the question has gone and the window is active again
        // (which the offscreen platform leaves to the program).
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        onNextDialog<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
        QTest::keyClick(&tree, Qt::Key_Delete);
        QCOMPARE(session_->getHostServices().getDialogService().getQuestions().size(), asked + 2);
        QCOMPARE(project.findEntity(structure), nullptr);
        QCOMPARE(project.findEntity(rebar)->getTopic(), std::nullopt);
        const std::wstring question =
            session_->getHostServices().getDialogService().getQuestions().back().text;
        QVERIFY2(question.find(L"“Load-bearing”") != std::wstring::npos,
                 qPrintable(QString::fromStdWString(question)));
        QCOMPARE(undo.text(), QString("&Undo Delete topic “Load-bearing”"));
        undo.trigger();
        QCOMPARE(project.findEntity(rebar)->getTopic(), TopicId(structure.uuid()));
    }

    void closingAndOpeningAskBeforeUnsavedChangesAreLost()
    {
        QStringList asked;
        QMessageBox::StandardButton answer = QMessageBox::Cancel;
        window_->setUnsavedChangesQuestion(
            [&](const QString& action)
            {
                asked << action;
                return answer;
            });
        QVERIFY2(window_->close(), "nothing unsaved, nothing asked");
        QVERIFY(asked.isEmpty());
        window_->show();

        const EntityId door = window_->getModel().nodeAt(entityIndex(L"Door 1000"))->getEntity();
        QVERIFY(window_->getCommandRunner().run(
            [this, &door] { session_->getEntityController().renameEntity(door, L"Door 1010"); }));
        QVERIFY(window_->isWindowModified());
        QVERIFY2(!window_->close(), "Cancel keeps the window");
        QCOMPARE(asked.size(), 1);
        answer = QMessageBox::Discard;
        QVERIFY(window_->close());
        QCOMPARE(asked.size(), 2);
    }

    void editActionsFollowTheSelectionAndDeleteAsksFirst()
    {
        QAction& remove = window_->getAction("delete");
        QAction& copy = window_->getAction("copy");
        QAction& paste = window_->getAction("paste");
        QCOMPARE(remove.shortcut(), QKeySequence(QKeySequence::Delete));
        QVERIFY(!remove.isEnabled());
        QVERIFY(!copy.isEnabled());
        QVERIFY(!paste.isEnabled());

        const QModelIndex glass = entityIndex(L"Glass 8mm");
        const EntityId id = window_->getModel().nodeAt(glass)->getEntity();
        window_->getTreeView().selectionModel()->select(glass, QItemSelectionModel::ClearAndSelect);
        QVERIFY(remove.isEnabled());
        QVERIFY(copy.isEnabled());
        copy.trigger();
        QVERIFY(paste.isEnabled());

        // The host's confirmation comes up as a message box, whose answer goes back to the library.
        const auto answer = [this](QMessageBox::StandardButton button)
        {
            onNextDialog<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
        };
        answer(QMessageBox::No);
        remove.trigger();
        QVERIFY2(session_->getProject().findEntity(id) != nullptr, "answered No, nothing is deleted");
        answer(QMessageBox::Yes);
        remove.trigger();
        QCOMPARE(session_->getProject().findEntity(id), nullptr);
        const host::CScriptedDialogService& dialogs = session_->getHostServices().getDialogService();
        QCOMPARE(dialogs.getQuestions().size(), std::size_t{2});
        QVERIFY(!window_->getModel().indexOfEntity(id).isValid());
        QVERIFY(!remove.isEnabled());

        // What a command cannot act on greys it out: a linked model is neither copied nor deleted
        // here, a door style not cut; the explorer's menu says the same.
        QAction& cut = window_->getAction("cut");
        window_->getTreeView().selectionModel()->select(entityIndex(L"Site model"),
                                                        QItemSelectionModel::ClearAndSelect);
        QVERIFY(!copy.isEnabled());
        QVERIFY(!cut.isEnabled());
        QVERIFY(!remove.isEnabled());
        window_->getTreeView().selectionModel()->select(entityIndex(L"Door 1000"),
                                                        QItemSelectionModel::ClearAndSelect);
        QVERIFY(copy.isEnabled());
        QVERIFY(!cut.isEnabled());
        QVERIFY(!remove.isEnabled());
        host::CGui& gui = session_->getGui();
        gui.requestContextMenu(MbCartPoint{0.0, 0.0});
        QStringList greyed;
        for (const CContextMenuItem& item : gui.getLastContextMenu())
            if (!item.isSeparator() && !item.isEnabled())
                greyed << QString::fromStdWString(item.getText());
        QCOMPARE(greyed, (QStringList{"Cut", "Delete"}));
    }

    void aFailedCommandIsShownAndChangesNothing()
    {
        const std::string before = session_->getProject().canonicalDump();
        const QModelIndex sheet = entityIndex(L"Sheet S-1");
        QVERIFY(!window_->getModel().setData(sheet, QString("Sheet S-2")));
        auto* const message = window_->findChild<QMessageBox*>();
        QVERIFY(message != nullptr);
        QVERIFY(message->isVisible());
        QVERIFY(message->text().contains("Sheet S-2"));
        QCOMPARE(session_->getProject().canonicalDump(), before);
        QCOMPARE(sheet.data().toString(), QString("Sheet S-1"));
    }

    // The Edit menu's undo and redo, failing because another observer of the project cannot follow
    // the replay, show why and leave the project and both steps where they were.
    void aFailedUndoOrRedoIsShownAndKeepsItsStep()
    {
        EntityId kept;
        session_->getEntityController().createEntity(entity_types::sheet(), kept);
        EntityId undone;
        session_->getEntityController().createEntity(entity_types::sheet(), undone);
        window_->getAction("undo").trigger();
        const model::CUndoHistory& history = session_->getUndoHistory();
        const auto everything = [&]
        {
            return std::tuple(session_->getProject().canonicalDump(), history.getUndoNames(),
                              history.getRedoNames());
        };
        const auto before = everything();
        const QString why("The drawing cannot follow the change.");
        {
            const host::CRefusingProjectObserver drawing(session_->getProject(), why.toStdString());
            for (const char* const name : {"undo", "redo"})
            {
                QAction& replay = window_->getAction(name);
                replay.trigger();
                auto* const message = window_->findChild<QMessageBox*>();
                QVERIFY(message != nullptr);
                QCOMPARE(message->text(), why);
                delete message;
                QVERIFY(everything() == before);
                QVERIFY2(replay.isEnabled(), name);
            }
        }
        QVERIFY(window_->getModel().indexOfEntity(kept).isValid());
        QVERIFY(!window_->getModel().indexOfEntity(undone).isValid());
    }

    void savedProjectsOpenAgainAndBrokenOnesAreReported()
    {
        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString path = directory.filePath("plan.json");
        CExplorerItemModel& model = window_->getModel();
        window_->getTreeView().expand(model.index(4, 0));
        QVERIFY(window_->saveProject(path));
        QVERIFY(window_->windowTitle().contains("plan.json"));

        QVERIFY(!window_->openProject(directory.filePath("missing.json")));
        auto* const message = window_->findChild<QMessageBox*>();
        QVERIFY(message != nullptr && message->text().contains("missing.json"));
        QVERIFY(window_->windowTitle().contains("plan.json"));

        session_->getPanel().toggleGroup(4);
        QVERIFY(window_->openProject(path));
        QVERIFY2(window_->getTreeView().isExpanded(model.index(4, 0)),
                 "the fold state came back with the file");
        VERIFY_EMPTY(foldMismatch(window_->getTreeView(), model));
        VERIFY_EMPTY(explorerMismatch(model, session_->getExplorer()));
    }

    void openedEntitiesShowInTabsThatFollowTheProject()
    {
        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString csv = writeTestFile(directory, "Lintels.csv", "Mark,Span,Load\nL1,1200\nL2,2400,12\n");
        // The host's request for a table file comes up as a file dialog, then as a preview.
        onNextDialog<QFileDialog>(
            [this, &csv](QFileDialog& dialog)
            {
                onNextDialog<CTableImportPreviewDialog>([](CTableImportPreviewDialog& preview)
                                                        { preview.accept(); });
                dialog.selectFile(csv);
                // QFileDialog hides its accept(), which checks the chosen file, behind QDialog's.
                static_cast<QDialog&>(dialog).accept();
            });
        window_->getAction("import").trigger();

        const QModelIndex lintels = entityIndex(L"Lintels");
        const EntityId id = window_->getModel().nodeAt(lintels)->getEntity();
        Q_EMIT window_->getTreeView().activated(lintels);
        CDocumentArea& documents = window_->getDocumentArea();
        QCOMPARE(documents.count(), 1);
        const CEntityPage* const page = documents.findPage(id);
        QVERIFY(page != nullptr);
        QCOMPARE(documents.tabText(0), QString("Lintels"));
        QCOMPARE(page->getCells().rowCount(), 2);
        QCOMPARE(page->getCells().columnCount(), 3);
        QCOMPARE(page->getCells().headerData(1, Qt::Horizontal).toString(), QString("Span"));
        QCOMPARE(page->getCells().index(1, 2).data().toString(), QString("12"));
        QCOMPARE(page->getCells().index(0, 2).data().toString(), QString());

        QVERIFY(window_->getModel().setData(lintels, QString("Lintels & sills")));
        QCOMPARE(documents.tabText(0), QString("Lintels && sills"));
        window_->getAction("undo").trigger();
        window_->getAction("undo").trigger();
        QCOMPARE(documents.count(), 0);
    }

    void tablePreviewShowsWhatWasDetectedAndFollowsTheUsersChoices()
    {
        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString rooms = writeTestFile(directory, "Räume.csv",
                                            "Raum;Fl\xE4"
                                            "che;Ebene\r\nB\xFCro 1;24,5;1\r\nFlur;8;1\r\n");

        CTableImportPreviewDialog preview(rooms, window_.get());
        QCOMPARE(preview.getEncoding().currentText(), QString("windows-1252"));
        QCOMPARE(preview.getDelimiter().currentData().toChar(), QChar(';'));
        QVERIFY(preview.getHeaderRow().isChecked());
        QCOMPARE(preview.getRows().horizontalHeaderItem(1)->text(), QString("Fläche"));
        QCOMPARE(preview.getRows().item(0, 1)->text(), QString("24,5"));

        preview.getDelimiter().setCurrentIndex(preview.getDelimiter().findData(QChar(',')));
        QVERIFY(preview.getChoices().delimiter == ',');
        QCOMPARE(preview.getRows().item(0, 1)->text(), QString("5;1"));
        preview.getHeaderRow().setChecked(false);
        QCOMPARE(preview.getRows().rowCount(), 3);
        QCOMPARE(preview.getRows().item(0, 0)->text(), QString("Raum;Fläche;Ebene"));

        const QString locked =
            writeTestFile(directory, "locked.xlsx",
                          QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + QByteArray(504, '\0'));
        CTableImportPreviewDialog refused(locked, window_.get());
        QVERIFY(refused.getSummary().text().contains("encrypted"));
        QVERIFY(!refused.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
    }

    void propertiesShowEverySelectedEntity()
    {
        window_->getTreeView().selectionModel()->select(entityIndex(L"Rebar 8"),
                                                        QItemSelectionModel::ClearAndSelect);
        window_->getTreeView().selectionModel()->select(entityIndex(L"Mesh Q188"),
                                                        QItemSelectionModel::Select);
        QAction& properties = window_->getAction("properties");
        QVERIFY(properties.isEnabled());
        int pages = -1;
        onNextDialog<CPropertiesDialog>(
            [&pages](CPropertiesDialog& dialog)
            {
                pages = static_cast<int>(dialog.findChildren<CEntityPage*>().size());
                dialog.reject();
            });
        properties.trigger();
        QCOMPARE(pages, 2);
    }

private:
    IProjectExplorerGroup& group(int row) { return groupAt(session_->getExplorer(), row); }

    // Acts on the next modal dialog of that kind once it shows and waits for the user.
    template <class Dialog, class Action>
    void onNextDialog(Action action)
    {
        QTimer::singleShot(0, this,
                           [action]
                           {
                               if (auto* const dialog =
                                       qobject_cast<Dialog*>(QApplication::activeModalWidget()))
                                   action(*dialog);
                           });
    }

    QModelIndex entityIndex(const std::wstring& name) const { return entityRow(window_->getModel(), name); }

    std::unique_ptr<host::CExplorerSession> session_;
    std::unique_ptr<CMainWindow> window_;
};

} // namespace aec::desktop

QTEST_MAIN(aec::desktop::DesktopWindowTest)
#include "DesktopWindowTest.moc"
