// The desktop program's main window on projects of 10,000 and 100,000 entities, driven as a user
// drives it: mouse clicks and keys on the tree, the grouping drop-downs, the Edit menu's actions.
// Each measurement lasts until the event loop is idle and the tree is painted again. The window
// runs offscreen (QT_QPA_PLATFORM=offscreen unless set otherwise).
//
// Each benchmark leaves the window as it found it; where putting it back costs more than the
// measured action or is another action, that part runs with the timer paused.

#include "AecModel/Project.h"
#include "AecModel/TableImporter.h"
#include "DesktopScaleWindow.h"
#include "ExplorerDesktop/ButtonComboBox.h"
#include "ExplorerDesktop/DocumentArea.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerTreeView.h"
#include "ExplorerDesktop/GroupingBar.h"
#include "ExplorerDesktop/MainWindow.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "ScaleSession.h"
#include "TimeBetween.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <fmt/format.h>
#include <fstream>

namespace benchmarks
{
namespace
{

constexpr std::int64_t tenThousand = 10'000;
constexpr std::int64_t hundredThousand = 100'000;
constexpr std::size_t thousand = 1'000;

CDesktopScaleWindow& windowOf(const benchmark::State& state)
{
    return CDesktopScaleWindow::of(static_cast<std::size_t>(state.range(0)));
}

void clearSelection(CDesktopScaleWindow& desktop)
{
    desktop.scale().session().getPanel().changeSelection({}, desktop.scale().allEntities());
    desktop.settle();
}

void triggerAction(CDesktopScaleWindow& desktop, const char* name)
{
    desktop.window().getAction(name).trigger();
    desktop.settle();
}

// A click on one entity, then on its neighbour: each selects one entity instead of another.
void BM_SelectOne(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    desktop.scrollTo(desktop.entity(0));
    int row = 0;
    for (auto _ : state)
    {
        desktop.click(desktop.entity(row));
        row = 1 - row;
    }
    state.SetItemsProcessed(state.iterations());
    clearSelection(desktop);
}

// From one selected entity, a Shift click selects the twenty rows down to another.
void BM_ExtendWithShift(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    desktop.scrollTo(desktop.entity(0));
    timeBetween(
        state, [&desktop] { desktop.click(desktop.entity(0)); },
        [&desktop] { desktop.click(desktop.entity(20), Qt::ShiftModifier); }, nothing);
    clearSelection(desktop);
}

// A Ctrl click adds one entity to a selection, the next takes it away.
void BM_ExtendWithCtrl(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    desktop.scrollTo(desktop.entity(0));
    desktop.click(desktop.entity(0));
    for (auto _ : state)
        desktop.click(desktop.entity(5), Qt::ControlModifier);
    state.SetItemsProcessed(state.iterations());
    clearSelection(desktop);
}

void BM_SelectAll(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    timeBetween(
        state, [&desktop] { desktop.makeCurrent(desktop.entity(0)); },
        [&desktop] { desktop.key(Qt::Key_A, Qt::ControlModifier); }, [&desktop] { clearSelection(desktop); });
}

// Left folds the current row, Right unfolds it: two clicks per iteration.
void foldAndUnfold(benchmark::State& state, CDesktopScaleWindow& desktop, const QModelIndex& row)
{
    desktop.makeCurrent(row);
    for (auto _ : state)
    {
        desktop.key(Qt::Key_Left);
        desktop.key(Qt::Key_Right);
    }
    state.SetItemsProcessed(state.iterations() * 2);
}

void BM_FoldGroup(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    foldAndUnfold(state, desktop, desktop.largestGroup());
}

void BM_FoldSubgroup(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    foldAndUnfold(state, desktop, desktop.largestSubgroup());
}

// The grouping bar shows the largest group's drop-downs once a row of it is current.
aec::desktop::CGroupingBar& barOfLargestGroup(CDesktopScaleWindow& desktop)
{
    desktop.makeCurrent(desktop.largestGroup());
    return desktop.window().getGroupingBar();
}

// Topic to none and back: each choice regroups every entity of the largest group.
void BM_ChangeGrouping(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    aec::desktop::CButtonComboBox& criterion = barOfLargestGroup(desktop).getCriterionBox();
    const QString topic = QString::fromStdWString(desktop.scale().topicGroupingValue());
    for (auto _ : state)
    {
        criterion.chooseValue("0");
        desktop.settle();
        criterion.chooseValue(topic);
        desktop.settle();
    }
    state.SetItemsProcessed(state.iterations() * 2);
}

void BM_FlipSortOrder(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    aec::desktop::CButtonComboBox& sortOrder = barOfLargestGroup(desktop).getSortOrderBox();
    const QString descending = QString::fromStdWString(std::wstring(aec::host::CGui::descendingValue));
    const QString ascending = QString::fromStdWString(std::wstring(aec::host::CGui::ascendingValue));
    for (auto _ : state)
    {
        sortOrder.chooseValue(descending);
        desktop.settle();
        sortOrder.chooseValue(ascending);
        desktop.settle();
    }
    state.SetItemsProcessed(state.iterations() * 2);
}

aec::EntityCollection largestCollection(CDesktopScaleWindow& desktop)
{
    return aec::projectExplorerGroups()[static_cast<std::size_t>(desktop.scale().largestGroupIndex())]
        .collection;
}

void selectThousand(CDesktopScaleWindow& desktop)
{
    desktop.scale().session().getPanel().changeSelection(
        desktop.scale().spreadOver(largestCollection(desktop), thousand), {});
    desktop.settle();
}

// Edit > Delete on 1,000 selected entities, the confirmation answered yes.
void BM_Delete(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    timeBetween(
        state, [&desktop] { selectThousand(desktop); }, [&desktop] { triggerAction(desktop, "delete"); },
        [&desktop] { triggerAction(desktop, "undo"); });
}

void BM_UndoDelete(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    timeBetween(
        state,
        [&desktop]
        {
            selectThousand(desktop);
            triggerAction(desktop, "delete");
        },
        [&desktop] { triggerAction(desktop, "undo"); }, [&desktop] { clearSelection(desktop); });
}

// Edit > Paste of 1,000 copied entities: new entities under unique names, in one undo step.
void BM_Paste(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    selectThousand(desktop);
    triggerAction(desktop, "copy");
    timeBetween(
        state, nothing, [&desktop] { triggerAction(desktop, "paste"); },
        [&desktop] { triggerAction(desktop, "undo"); });
    clearSelection(desktop);
}

// A table of `rows` rows of five cells, imported as a user imports a CSV file.
aec::EntityId importTable(CDesktopScaleWindow& desktop, std::size_t rows)
{
    QTemporaryDir directory;
    const std::string path = directory.filePath("Survey.csv").toStdString();
    {
        std::ofstream file(path);
        file << "Mark,Level,Room,Area,Finish\n";
        for (std::size_t row = 0; row < rows; ++row)
            file << fmt::format("M-{:06},Level {},Room {},{}.{:02},Finish {}\n", row, row % 40, row % 997,
                                row % 300, row % 100, row % 13);
    }
    const aec::EntityId table =
        aec::model::CTableImporter().importTable(desktop.scale().session().getProject(), path);
    desktop.settle();
    return table;
}

void BM_OpenTable(benchmark::State& state)
{
    CDesktopScaleWindow& desktop = windowOf(state);
    const auto rows = static_cast<std::size_t>(state.range(1));
    const aec::EntityId table = importTable(desktop, rows);
    aec::desktop::CDocumentArea& documents = desktop.window().getDocumentArea();
    timeBetween(
        state, nothing,
        [&desktop, &documents, &table]
        {
            documents.openEntities({table}, desktop.scale().session().getProject());
            desktop.settle();
        },
        [&desktop, &documents]
        {
            // A page dies with its tab.
            while (documents.count() > 0)
                delete documents.widget(0);
            desktop.settle();
        });
    state.counters["rows"] = static_cast<double>(rows);
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(tenThousand)->Arg(hundredThousand)->Unit(benchmark::kMillisecond);
}

BENCHMARK(BM_SelectOne)->Name("desktop/select/one")->Apply(sizes);
BENCHMARK(BM_ExtendWithShift)->Name("desktop/select/shift")->Apply(sizes);
BENCHMARK(BM_ExtendWithCtrl)->Name("desktop/select/ctrl")->Apply(sizes);
BENCHMARK(BM_SelectAll)->Name("desktop/select/all")->Apply(sizes);
BENCHMARK(BM_FoldGroup)->Name("desktop/fold/group")->Apply(sizes);
BENCHMARK(BM_FoldSubgroup)->Name("desktop/fold/subgroup")->Apply(sizes);
BENCHMARK(BM_ChangeGrouping)->Name("desktop/regroup")->Apply(sizes);
BENCHMARK(BM_FlipSortOrder)->Name("desktop/sort/flip")->Apply(sizes);
BENCHMARK(BM_Delete)->Name("desktop/delete/1000")->Apply(sizes);
BENCHMARK(BM_UndoDelete)->Name("desktop/undo-delete/1000")->Apply(sizes);
BENCHMARK(BM_Paste)->Name("desktop/paste/1000")->Apply(sizes);
BENCHMARK(BM_OpenTable)
    ->Name("desktop/open-table")
    ->Args({hundredThousand, hundredThousand})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace benchmarks

int main(int argc, char** argv)
{
    // The window needs no display: Qt draws it offscreen unless told otherwise.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    // The windows go before the application object; the sessions they show outlive them.
    benchmarks::CDesktopScaleWindow::releaseAll();
    return 0;
}
