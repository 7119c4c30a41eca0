#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "AecModel/UndoHistory.h"
#include "DesktopTestSupport.h"
#include "ExplorerDesktop/ButtonComboBox.h"
#include "ExplorerDesktop/CommandRunner.h"
#include "ExplorerDesktop/EntityDragData.h"
#include "ExplorerDesktop/ExplorerItemDelegate.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerSelectionModel.h"
#include "ExplorerDesktop/ExplorerTreeView.h"
#include "ExplorerDesktop/GroupContextMenu.h"
#include "ExplorerDesktop/GroupingBar.h"
#include "ExplorerDesktop/MainWindow.h"
#include "ExplorerDesktop/OpenFailureDialog.h"
#include "ExplorerDesktop/StatusCounts.h"
#include "ExplorerDesktop/SystemClipboardBridge.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "aec/ContextMenuItem.h"
#include "aec/MbCartPoint.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <vector>

namespace aec::desktop
{

// The main window's tree as users work it: the name filter, unfolding and folding everything, the
// group's context menu and Shift+F10, the change-topic submenu, dragging entities onto a topic, the
// desktop's clipboard through Ctrl+C and Ctrl+V
// between two windows, icons, tooltips and counts, and a project that does not open. A model
// tester watches the explorer's item model (and the filter over it) through every action.
class DesktopTreeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QGuiApplication::clipboard()->clear();
        session_ = std::make_unique<host::CExplorerSession>(7);
        session_->open(model::buildSampleProject());
        window_ = std::make_unique<CMainWindow>(*session_);
        tester_ = std::make_unique<QAbstractItemModelTester>(
            &window_->getModel(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void cleanup()
    {
        filterTester_.reset();
        tester_.reset();
        window_.reset();
        session_.reset();
    }

    void theFilterNarrowsAndUnfoldsWithoutTouchingTheUserFolds()
    {
        CExplorerTreeView& tree = window_->getTreeView();
        CExplorerItemModel& model = window_->getModel();
        groupByTopic(0);
        tree.expand(model.index(0, 0));
        tree.expand(entityIndex(L"Cover sheet").parent());
        const QModelIndex glass = entityIndex(L"Glass 8mm");
        tree.selectionModel()->select(glass, QItemSelectionModel::ClearAndSelect);
        const QStringList folds = explorerFolds();
        const std::string preferences = session_->getProject().getPreferences().toJson().dump();

        QTest::keyClicks(&window_->getFilterBox(), "fenetre");
        QTRY_VERIFY2(tree.isFiltering(), "the tree follows once typing pauses");
        typeFilter("fenetre");
        QCOMPARE(shownEntities(), QStringList{"Fenêtre 3"});
        const QModelIndex fenetre = tree.fromItemModel(entityIndex(L"Fenêtre 3"));
        QVERIFY(fenetre.parent().isValid());
        for (QModelIndex leading = fenetre.parent(); leading.isValid(); leading = leading.parent())
            QVERIFY2(tree.isExpanded(leading), "the rows that lead to a match are unfolded");
        QCOMPARE(explorerFolds(), folds);

        // Case, accents, word order and leading zeros do not matter.
        typeFilter("UBERSICHT");
        QCOMPARE(shownEntities(), QStringList{"Übersicht"});
        typeFilter("02 LIST");
        QCOMPARE(shownEntities(), QStringList{"Room list 2"});
        typeFilter("dammung");
        QCOMPARE(shownEntities(), QStringList{"Holzfaserdämmung"});

        // Folding while filtering, and selecting among the matches, leave hidden selections alone.
        typeFilter("cover");
        const QModelIndex cover = tree.fromItemModel(entityIndex(L"Cover sheet"));
        tree.collapse(cover.parent());
        tree.collapse(cover.parent().parent());
        QCOMPARE(explorerFolds(), folds);
        typeFilter("fenetre");
        QCOMPARE(session_->getProject().getPreferences().toJson().dump(), preferences);
        tree.selectionModel()->select(tree.fromItemModel(entityIndex(L"Fenêtre 3")),
                                      QItemSelectionModel::ClearAndSelect);
        QCOMPARE(session_->getSelection(), (EntityIdSet{entityId(L"Glass 8mm"), entityId(L"Fenêtre 3")}));
        // The explorer unfolds the group of what the user selects, filter or not.
        QVERIFY(groupAt(session_->getExplorer(), 5).isExpanded());
        const QStringList selectedFolds = explorerFolds();
        const std::string selectedPreferences = session_->getProject().getPreferences().toJson().dump();

        // A match that comes while the filter is set shows unfolded.
        QVERIFY(model.setData(entityIndex(L"Sheet S-10"), QString("Fensterplan")));
        typeFilter("fen");
        QCOMPARE(shownEntities(), (QStringList{"Fensterplan", "Fenêtre 3"}));
        QTRY_VERIFY2(window_->getStatusCounts().text().contains("2 selected"),
                     "the hidden selected entity counts");

        window_->activateWindow();
        window_->getFilterBox().setFocus();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        QTest::keyClick(&window_->getFilterBox(), Qt::Key_Escape);
        QVERIFY2(!tree.isFiltering(), "Escape clears the filter");
        QCOMPARE(tree.model(), &model);
        QCOMPARE(explorerFolds(), selectedFolds);
        QCOMPARE(session_->getProject().getPreferences().toJson().dump(), selectedPreferences);
        VERIFY_EMPTY(foldMismatch(tree, model));
        QCOMPARE(tree.selectionModel()->selectedIndexes().size(), 2);

        typeFilter("   ");
        QVERIFY2(!tree.isFiltering(), "blanks filter nothing");
    }

    void expandAndCollapseAllFoldAsTheUserDoes()
    {
        CExplorerTreeView& tree = window_->getTreeView();
        CExplorerItemModel& model = window_->getModel();
        groupByTopic(0);
        window_->getAction("expandAll").trigger();
        QVERIFY(!explorerFolds().join(' ').contains(":folded"));
        VERIFY_EMPTY(foldMismatch(tree, model));

        CGroupContextMenu sheetsMenu(model.index(0, 0), model, tree, *session_, window_->getCommandRunner());
        action(sheetsMenu, "collapseAll").trigger();
        IProjectExplorerGroup& sheets = groupAt(session_->getExplorer(), 0);
        QVERIFY(!sheets.isExpanded());
        for (const IProjectExplorerSubgroup& subgroup : sheets.getSubgroups())
            QVERIFY(!subgroup.isExpanded());
        QVERIFY2(groupAt(session_->getExplorer(), 1).isExpanded(), "only the group folded");

        tree.setFocus();
        tree.setCurrentIndex(model.index(0, 0));
        QTest::keyClick(&tree, Qt::Key_Asterisk, Qt::KeypadModifier);
        QVERIFY(sheets.isExpanded());
        for (const IProjectExplorerSubgroup& subgroup : sheets.getSubgroups())
            QVERIFY(subgroup.isExpanded());

        window_->getAction("collapseAll").trigger();
        QVERIFY(!explorerFolds().join(' ').contains(":unfolded"));
        VERIFY_EMPTY(foldMismatch(tree, model));

        // While filtering, the same commands fold the view only.
        typeFilter("door");
        const QStringList folds = explorerFolds();
        window_->getAction("expandAll").trigger();
        window_->getAction("collapseAll").trigger();
        QCOMPARE(explorerFolds(), folds);
    }

    void theGroupMenuOffersWhatTheGroupAllows()
    {
        CExplorerTreeView& tree = window_->getTreeView();
        CExplorerItemModel& model = window_->getModel();
        CCommandRunner& runner = window_->getCommandRunner();
        CGroupContextMenu tables(model.index(1, 0), model, tree, *session_, runner);
        QVERIFY(action(tables, "importTable").isEnabled());
        QVERIFY2(!action(tables, "paste").isEnabled(), "nothing was copied");
        CGroupContextMenu linkedModels(model.index(8, 0), model, tree, *session_, runner);
        QVERIFY(linkedModels.findChild<QAction*>("newEntity") == nullptr);
        QVERIFY(linkedModels.findChild<QAction*>("importTable") == nullptr);

        const std::size_t sheetsBefore = session_->getProject().getEntities(EntityCollection::Sheets).size();
        CGroupContextMenu sheets(model.index(0, 0), model, tree, *session_, runner);
        QVERIFY(sheets.findChild<QAction*>("importTable") == nullptr);
        action(sheets, "newEntity").trigger();
        QCOMPARE(session_->getProject().getEntities(EntityCollection::Sheets).size(), sheetsBefore + 1);
        QVERIFY2(tree.isEditing(), "a new entity's name opens for editing");
        QTest::keyClick(tree.focusWidget(), Qt::Key_Escape);

        // Shift+F10 opens the explorer's menu for the selection, with the Edit menu's keys.
        tree.setFocus();
        tree.setCurrentIndex(entityIndex(L"Glass 8mm"));
        QKeySequence copyKey;
        readNextPopup(
            [&copyKey](const QAction& item)
            {
                if (QString(item.text()).remove('&') == "Copy")
                    copyKey = item.shortcut();
            });
        QTest::keyClick(&tree, Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(copyKey, QKeySequence(QKeySequence::Copy));
    }

    void draggingOntoATopicChangesTheTopicInOneStep()
    {
        CExplorerItemModel& model = window_->getModel();
        groupByTopic(0);
        groupByTopic(1);
        window_->getAction("expandAll").trigger();
        const EntityIdList dragged{entityId(L"Sheet S-1"), entityId(L"Cover sheet")};
        const std::unique_ptr<QMimeData> data = CEntityDragData::make(dragged, {"Sheet S-1", "Cover sheet"});
        const QModelIndex architecture = subgroupIndex(0, "Architecture");

        QVERIFY2(!dragOver(*data, entityIndex(L"Sheet A-20")), "an entity takes no drop");
        QVERIFY2(!dragOver(*data, model.index(0, 0)), "a group takes no drop");
        QVERIFY2(!dragOver(*data, subgroupIndex(1, "Architecture")), "a topic of another group");
        const std::unique_ptr<QMimeData> text = std::make_unique<QMimeData>();
        text->setText("Sheet S-1");
        QVERIFY2(!dragOver(*text, architecture), "plain text is no drag of entities");
        const std::unique_ptr<QMimeData> alreadyThere =
            CEntityDragData::make({entityId(L"Sheet A-101")}, {"Sheet A-101"});
        QVERIFY(!dragOver(*alreadyThere, architecture));

        const std::size_t steps = session_->getUndoHistory().getUndoNames().size();
        QVERIFY(dragOver(*data, architecture));
        QVERIFY(drop(*data, architecture));
        QCOMPARE(session_->getUndoHistory().getUndoNames().size(), steps + 1);
        for (const std::wstring name : {L"Sheet S-1", L"Cover sheet"})
            QCOMPARE(entityIndex(name).parent().data(Qt::EditRole).toString(), QString("Architecture"));
        VERIFY_EMPTY(explorerMismatch(model, session_->getExplorer()));

        window_->getAction("undo").trigger();
        QCOMPARE(entityIndex(L"Sheet S-1").parent().data(Qt::EditRole).toString(), QString("Structure"));
    }

    void theClipboardCarriesEntitiesBetweenWindowsAndNotText()
    {
        host::CExplorerSession otherSession(8);
        otherSession.open(model::buildSampleProject());
        CMainWindow other(otherSession);
        QAbstractItemModelTester otherTester(&other.getModel(),
                                             QAbstractItemModelTester::FailureReportingMode::Fatal);
        QVERIFY(!other.getAction("paste").isEnabled());

        window_->getTreeView().selectionModel()->select(entityIndex(L"Glass 8mm"),
                                                        QItemSelectionModel::ClearAndSelect);
        window_->getTreeView().selectionModel()->select(entityIndex(L"Brick 240"),
                                                        QItemSelectionModel::Select);
        window_->getTreeView().setFocus();
        QTest::keySequence(&window_->getTreeView(), QKeySequence::Copy);
        const QMimeData* const shared = QGuiApplication::clipboard()->mimeData();
        QVERIFY(shared != nullptr && shared->hasFormat(CSystemClipboardBridge::mimeType));
        QStringList names = shared->text().split('\n');
        names.sort();
        QCOMPARE(names, (QStringList{"Brick 240", "Glass 8mm"}));

        QTRY_VERIFY(other.getAction("paste").isEnabled());
        const std::size_t materials =
            otherSession.getProject().getEntities(EntityCollection::Materials).size();
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        other.getTreeView().setFocus();
        QTest::keySequence(&other.getTreeView(), QKeySequence::Paste);
        QCOMPARE(otherSession.getProject().getEntities(EntityCollection::Materials).size(), materials + 2);

        QGuiApplication::clipboard()->setText("Glass 8mm");
        QTRY_VERIFY(!other.getAction("paste").isEnabled());
        QVERIFY(!window_->getAction("paste").isEnabled());
    }

    void theChangeTopicMenuOffersNoTopicFirstAndChecksTheCurrentOne()
    {
        CExplorerTreeView& tree = window_->getTreeView();
        window_->getAction("expandAll").trigger();
        const auto choices = [this, &tree]
        {
            QStringList shown;
            readNextPopup(
                [&shown](const QAction& item)
                {
                    if (item.menu() != nullptr && item.text() == "Change topic")
                        for (QAction* const topic : item.menu()->actions())
                            shown << topic->text().replace("&&", "&") +
                                         (topic->isChecked() ? " (checked)" : "");
                });
            // A right click on a selected row.
            const QModelIndex clicked = tree.selectionModel()->selectedIndexes().front();
            tree.scrollTo(clicked);
            Q_EMIT tree.customContextMenuRequested(tree.visualRect(clicked).center());
            return shown;
        };
        const auto choose = [this](const std::vector<std::wstring>& names)
        {
            QItemSelectionModel& selection = *window_->getTreeView().selectionModel();
            selection.select(entityIndex(names.front()), QItemSelectionModel::ClearAndSelect);
            for (const std::wstring& name : names)
                selection.select(entityIndex(name), QItemSelectionModel::Select);
        };
        choose({L"Rebar 8"});
        QCOMPARE(choices(), (QStringList{"(No topic)", "Architecture", "Façades", "landscape", "level 2",
                                         "Level 10", "MEP services", "Structure (checked)"}));
        choose({L"Mesh Q257"});
        QCOMPARE(choices().first(), QString("(No topic) (checked)"));
        choose({L"Rebar 8", L"Mesh Q188"});
        QVERIFY2(!choices().join(',').contains("checked"), "the selected entities have different topics");

        // "(No topic)" takes the topic away through the explorer's change of topic: one undo step.
        choose({L"Rebar 8"});
        host::CGui& gui = session_->getGui();
        gui.requestContextMenu(MbCartPoint{0.0, 0.0});
        const auto submenu = std::ranges::find(gui.getLastContextMenu(), std::wstring(L"Change topic"),
                                               &CContextMenuItem::getText);
        QVERIFY(submenu != gui.getLastContextMenu().end());
        const std::size_t submenuIndex = static_cast<std::size_t>(submenu - gui.getLastContextMenu().begin());
        QVERIFY(window_->getCommandRunner().run(
            [&] {
                gui.chooseContextMenuItem(std::vector{submenuIndex, std::size_t{0}});
            }));
        QCOMPARE(session_->getProject().findEntity(entityId(L"Rebar 8"))->getTopic(), std::nullopt);
        QCOMPARE(window_->getAction("undo").text(),
                 QString("&Undo Change the topic of reinforcement style “Rebar 8”"));
        window_->getAction("undo").trigger();
        QVERIFY(session_->getProject().findEntity(entityId(L"Rebar 8"))->getTopic().has_value());
    }

    void entitiesShowTheirKindTopicAndCounts()
    {
        CExplorerItemDelegate& delegate = window_->getItemDelegate();
        const QString tip = delegate.entityToolTip(entityIndex(L"Fenêtre 3"));
        QVERIFY2(tip.contains("Fenêtre 3") && tip.contains("window style") && tip.contains("Architecture"),
                 qPrintable(tip));
        QVERIFY(delegate.entityToolTip(window_->getModel().index(0, 0)).isEmpty());
        const auto picture = [&delegate, this](const wchar_t* name)
        {
            return delegate.entityIcon(entityIndex(name)).pixmap(16).toImage();
        };
        QCOMPARE(picture(L"Sheet S-1"), picture(L"Cover sheet"));
        QVERIFY(picture(L"Sheet S-1") != picture(L"Door schedule"));

        CStatusCounts& counts = window_->getStatusCounts();
        const int entities = counts.text().section(' ', 0, 0).toInt();
        QVERIFY2(entities > 50, qPrintable(counts.text()));
        window_->getTreeView().selectionModel()->select(entityIndex(L"Logo"),
                                                        QItemSelectionModel::ClearAndSelect);
        window_->getTreeView().selectionModel()->select(entityIndex(L"Photo 1"), QItemSelectionModel::Select);
        QTRY_VERIFY2(counts.text().contains("2 selected"), qPrintable(counts.text()));
        QVERIFY(window_->getModel().setData(entityIndex(L"Sheet S-1"), QString("Sheet S-1a")));
        window_->getAction("undo").trigger();
        QTRY_COMPARE(counts.text().section(' ', 0, 0).toInt(), entities);
    }

    void aProjectThatDoesNotReadSaysWhereReadingStopped()
    {
        QTemporaryDir directory;
        QVERIFY(directory.isValid());
        const QString path =
            writeTestFile(directory, "broken.json", "{\n  \"format\": \"x\",\n  \"version\": 1,,\n}\n");
        const std::string before = session_->getProject().canonicalDump();
        QVERIFY(!window_->openProject(path));
        auto* const dialog = window_->findChild<COpenFailureDialog*>();
        QVERIFY(dialog != nullptr && dialog->isVisible());
        QVERIFY2(dialog->text().contains("broken.json"), qPrintable(dialog->text()));
        QVERIFY2(dialog->informativeText().contains("line 3, column 16"),
                 qPrintable(dialog->informativeText()));
        QCOMPARE(session_->getProject().canonicalDump(), before);
        QVERIFY(!COpenFailureDialog::stopPosition("it has no \"collections\""));
    }

private:
    // Reads each action of the next popup menu once it shows, then closes it.
    template <class Read>
    void readNextPopup(Read read)
    {
        QTimer::singleShot(0, this,
                           [read]
                           {
                               auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                               if (menu == nullptr)
                                   return;
                               for (const QAction* const item : menu->actions())
                                   read(*item);
                               menu->close();
                           });
    }

    void typeFilter(const QString& text)
    {
        QLineEdit& box = window_->getFilterBox();
        box.clear();
        QTest::keyClicks(&box, text);
        // The tree follows the box when typing pauses, or at once on Enter.
        QTest::keyClick(&box, Qt::Key_Return);
        CExplorerTreeView& tree = window_->getTreeView();
        if (tree.isFiltering() && (filterTester_ == nullptr || filterTester_->model() != tree.model()))
            filterTester_ = std::make_unique<QAbstractItemModelTester>(
                tree.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    // The names of the entities the tree shows, in tree order.
    QStringList shownEntities() const
    {
        QStringList names;
        const QAbstractItemModel& shown = *window_->getTreeView().model();
        const std::function<void(const QModelIndex&)> visit = [&](const QModelIndex& parent)
        {
            for (int row = 0; row < shown.rowCount(parent); ++row)
            {
                const QModelIndex index = shown.index(row, 0, parent);
                if (index.data(CExplorerItemModel::KindRole).toInt() == int(CExplorerTreeNode::Kind::Entity))
                    names.append(index.data(Qt::EditRole).toString());
                visit(index);
            }
        };
        visit(QModelIndex());
        return names;
    }

    // Every group's and subgroup's fold in the explorer, as "name:unfolded" or "name:folded".
    QStringList explorerFolds() const
    {
        QStringList folds;
        const auto fold = [](bool expanded)
        {
            return expanded ? ":unfolded" : ":folded";
        };
        for (const IProjectExplorerGroup& group : session_->getExplorer().getGroups())
        {
            folds.append(QString::fromStdWString(group.getName()) + fold(group.isExpanded()));
            for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
                folds.append(QString::fromStdWString(group.getName() + L"/" + subgroup.getName()) +
                             fold(subgroup.isExpanded()));
        }
        return folds;
    }

    void groupByTopic(int groupRow)
    {
        CGroupingBar& bar = window_->getGroupingBar();
        bar.showGroup(projectExplorerGroups()[static_cast<std::size_t>(groupRow)].id);
        CButtonComboBox& criterion = bar.getCriterionBox();
        const int topic = criterion.findText("Topic");
        QVERIFY(topic >= 0);
        QVERIFY(criterion.chooseValue(criterion.itemData(topic).toString()));
    }

    QModelIndex subgroupIndex(int groupRow, const QString& name) const
    {
        const CExplorerItemModel& model = window_->getModel();
        const QModelIndex group = model.index(groupRow, 0);
        for (int row = 0; row < model.rowCount(group); ++row)
            if (model.index(row, 0, group).data(Qt::EditRole).toString() == name)
                return model.index(row, 0, group);
        return {};
    }

    // Whether the tree takes the drag over the row of the item model.
    bool dragOver(const QMimeData& data, const QModelIndex& itemIndex)
    {
        CExplorerTreeView& tree = window_->getTreeView();
        const QPoint at = tree.visualRect(tree.fromItemModel(itemIndex)).center();
        QDragEnterEvent enter(at, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree.viewport(), &enter);
        if (!enter.isAccepted())
            return false;
        QDragMoveEvent move(at, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree.viewport(), &move);
        return move.isAccepted();
    }

    bool drop(const QMimeData& data, const QModelIndex& itemIndex)
    {
        CExplorerTreeView& tree = window_->getTreeView();
        const QPoint at = tree.visualRect(tree.fromItemModel(itemIndex)).center();
        QDropEvent dropped(at, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(tree.viewport(), &dropped);
        return dropped.isAccepted();
    }

    static QAction& action(const QMenu& menu, const char* name)
    {
        auto* const found = menu.findChild<QAction*>(name);
        if (found == nullptr)
            qFatal("the menu has no action %s", name);
        return *found;
    }

    QModelIndex entityIndex(const std::wstring& name) const { return entityRow(window_->getModel(), name); }
    EntityId entityId(const std::wstring& name) const
    {
        return window_->getModel().nodeAt(entityIndex(name))->getEntity();
    }

    std::unique_ptr<host::CExplorerSession> session_;
    std::unique_ptr<CMainWindow> window_;
    std::unique_ptr<QAbstractItemModelTester> tester_;
    std::unique_ptr<QAbstractItemModelTester> filterTester_;
};

} // namespace aec::desktop

QTEST_MAIN(aec::desktop::DesktopTreeTest)
#include "DesktopTreeTest.moc"
