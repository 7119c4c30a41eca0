// The explorer on projects of 10,000, 100,000 and 1,000,000 entities, driven through the reference
// host's session as a user drives it: grouping buttons, folds and selections through the panel and
// its GUI event handler, commands through the GUI. Beside the rebuilds, the least work a rebuild
// must do (the floor) and the same tree made by hand with Qt's item model (the peer).
//
// Each benchmark leaves its session as it found it, mostly by undoing its own work in the same
// iteration (a fold and the unfold after it count as two clicks); where the undoing is dearer than
// the measured work or of another kind, it runs with the timer paused.

#include "AecModel/Project.h"
#include "AecModel/UndoHistory.h"
#include "GroupingFloor.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "QtTreePeer.h"
#include "ScaleSession.h"
#include "TimeBetween.h"
#include "aec/Commands.h"
#include "aec/ObjectEvents.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerFactory.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <QStandardItemModel>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <iterator>
#include <memory>

namespace benchmarks
{
namespace
{

constexpr std::int64_t tenThousand = 10'000;
constexpr std::int64_t hundredThousand = 100'000;
constexpr std::int64_t million = 1'000'000;

CScaleSession& sessionOf(const benchmark::State& state)
{
    return CScaleSession::of(static_cast<std::size_t>(state.range(0)));
}

void countOperations(benchmark::State& state, std::int64_t perIteration)
{
    state.SetItemsProcessed(state.iterations() * perIteration);
}

// The largest group's collection is one of the four whose entities the explorer deletes.
aec::EntityCollection largestCollection(CScaleSession& scale)
{
    return aec::projectExplorerGroups()[static_cast<std::size_t>(scale.largestGroupIndex())].collection;
}

void BM_MakeExplorer(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CExplorerSession& session = scale.session();
    aec::model::CProject& project = session.getProject();
    std::unique_ptr<aec::IProjectExplorer> explorer;
    timeBetween(
        state, nothing,
        [&]
        {
            explorer = session.getExplorerFactory().createProjectExplorer(
                project.getPreferences(), project, session.getHostServices().getPropertyCatalog());
        },
        [&explorer] { explorer.reset(); });
}

// Chooses a value of the largest group's grouping criterion as the user does.
auto chooseGrouping(CScaleSession& scale, const std::wstring& value)
{
    return [&scale, value]
    {
        const aec::host::GroupingButtonIds buttons = scale.largestGroupButtons();
        scale.session().getGui().chooseButtonValue(buttons.panel, buttons.groupCriterion, value);
    };
}

const std::wstring noGrouping = L"0";

// None to topic: every entity of the group is formatted, bucketed and ordered.
void BM_RegroupToTopic(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    timeBetween(state, chooseGrouping(scale, noGrouping), chooseGrouping(scale, scale.topicGroupingValue()),
                nothing);
    state.counters["entities"] =
        static_cast<double>(scale.session().getProject().getEntities(largestCollection(scale)).size());
}

// Topic to none: the topic subgroups give way to one subgroup of all entities.
void BM_RegroupToNone(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    timeBetween(state, nothing, chooseGrouping(scale, noGrouping),
                chooseGrouping(scale, scale.topicGroupingValue()));
}

void BM_FlipSortOrder(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CGui& gui = scale.session().getGui();
    const aec::host::GroupingButtonIds buttons = scale.largestGroupButtons();
    for (auto _ : state)
    {
        gui.chooseButtonValue(buttons.panel, buttons.sortOrder,
                              std::wstring(aec::host::CGui::descendingValue));
        gui.chooseButtonValue(buttons.panel, buttons.sortOrder,
                              std::wstring(aec::host::CGui::ascendingValue));
    }
    countOperations(state, 2);
}

void BM_FoldGroup(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CExplorerPanel& panel = scale.session().getPanel();
    for (auto _ : state)
    {
        panel.toggleGroup(scale.largestGroupIndex());
        panel.toggleGroup(scale.largestGroupIndex());
    }
    countOperations(state, 2);
}

void BM_FoldSubgroup(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CExplorerPanel& panel = scale.session().getPanel();
    const int subgroup = scale.largestSubgroupIndex();
    for (auto _ : state)
    {
        panel.toggleSubgroup(scale.largestGroupIndex(), subgroup);
        panel.toggleSubgroup(scale.largestGroupIndex(), subgroup);
    }
    countOperations(state, 2);
}

// Selects or deselects every entity through the panel, as a click with the shift key would.
auto selectAll(CScaleSession& scale, bool select)
{
    return [&scale, select]
    {
        if (select)
            scale.session().getPanel().changeSelection(scale.allEntities(), {});
        else
            scale.session().getPanel().changeSelection({}, scale.allEntities());
    };
}

void BM_SelectAll(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    timeBetween(state, nothing, selectAll(scale, true), selectAll(scale, false));
}

void BM_SelectNone(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    timeBetween(state, selectAll(scale, true), selectAll(scale, false), nothing);
}

// A click with the control key on one more entity, and another that takes it away again.
void BM_SelectOneMore(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CExplorerPanel& panel = scale.session().getPanel();
    const aec::EntityIdSet one{*scale.allEntities().rbegin()};
    aec::EntityIdSet others = scale.allEntities();
    others.erase(*one.begin());
    panel.changeSelection(others, {});
    for (auto _ : state)
    {
        panel.changeSelection(one, {});
        panel.changeSelection({}, one);
    }
    panel.changeSelection({}, others);
    countOperations(state, 2);
}

// `count` entities of the largest group, selected through the panel.
auto selectSpread(CScaleSession& scale, std::size_t count)
{
    return [&scale, chosen = scale.spreadOver(largestCollection(scale), count)]
    {
        scale.session().getPanel().changeSelection(chosen, {});
    };
}

void runCommand(CScaleSession& scale, int command)
{
    scale.session().getGui().runCommand(command);
}

void undo(CScaleSession& scale)
{
    scale.session().getUndoHistory().undo();
}

// Delete with the confirmation answered yes, including the rebuild of the groups it touches.
void BM_Delete(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    timeBetween(
        state, selectSpread(scale, static_cast<std::size_t>(state.range(1))),
        [&scale] { runCommand(scale, aec::commands::deleteSelection); }, [&scale] { undo(scale); });
}

void BM_UndoDelete(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    timeBetween(
        state,
        [&scale, select = selectSpread(scale, static_cast<std::size_t>(state.range(1)))]
        {
            select();
            runCommand(scale, aec::commands::deleteSelection);
        },
        [&scale] { undo(scale); }, nothing);
}

// Every entity of the largest group's largest subgroup, selected through the panel.
auto selectLargestSubgroup(CScaleSession& scale)
{
    return [&scale]
    {
        const int index = scale.largestSubgroupIndex();
        const aec::IProjectExplorerSubgroup& subgroup =
            *std::next(scale.largestGroup().getSubgroups().begin(), index);
        const auto entities = subgroup.getEntities();
        scale.session().getPanel().changeSelection(aec::EntityIdSet(entities.begin(), entities.end()), {});
    };
}

// Deleting every entity of one subgroup: the rebuild destroys that subgroup and keeps every other
// subgroup of the group, whose listeners must tell the kept ones from the new and the gone.
void BM_DeleteSubgroup(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    timeBetween(
        state, selectLargestSubgroup(scale), [&scale] { runCommand(scale, aec::commands::deleteSelection); },
        [&scale] { undo(scale); });
}

void BM_Copy(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CExplorerSession& session = scale.session();
    const aec::EntityIdSet chosen =
        scale.spreadOver(largestCollection(scale), static_cast<std::size_t>(state.range(1)));
    session.getPanel().changeSelection(chosen, {});
    for (auto _ : state)
        session.getGui().runCommand(aec::commands::copy);
    session.getPanel().changeSelection({}, chosen);
    countOperations(state, 1);
}

// Pasting makes new entities under unique names, one undo step, and rebuilds the group.
void BM_Paste(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    const aec::EntityIdSet chosen =
        scale.spreadOver(largestCollection(scale), static_cast<std::size_t>(state.range(1)));
    scale.session().getPanel().changeSelection(chosen, {});
    runCommand(scale, aec::commands::copy);
    scale.session().getPanel().changeSelection({}, chosen);
    timeBetween(
        state, nothing, [&scale] { runCommand(scale, aec::commands::paste); }, [&scale] { undo(scale); });
}

void countGroupableEntities(benchmark::State& state, CScaleSession& scale)
{
    state.counters["entities"] = static_cast<double>(scale.groupableEntityCount());
}

// What the panel does when an object event names the seven groupable collections: every one of
// those groups asks the maker again and hands its subgroups their sets.
void BM_RebuildGroupable(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    std::uint32_t collections = 0;
    for (const aec::ProjectExplorerGroupInfo& group : aec::projectExplorerGroups())
        if (group.groupable)
            collections |= aec::entityCollectionBit(group.collection);
    aec::host::CExplorerPanel& panel = scale.session().getPanel();
    for (auto _ : state)
        panel.onObjectsChanged(aec::objectEventEntitiesChanged, collections, {}, {});
    countOperations(state, 1);
    countGroupableEntities(state, scale);
}

void BM_GroupingFloor(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CExplorerSession& session = scale.session();
    for (auto _ : state)
        benchmark::DoNotOptimize(groupByFormattedName(
            session.getProject(), session.getHostServices().getAttributeValueFormatter()));
    countOperations(state, 1);
    countGroupableEntities(state, scale);
}

void BM_QtTreePeer(benchmark::State& state)
{
    CScaleSession& scale = sessionOf(state);
    aec::host::CExplorerSession& session = scale.session();
    std::unique_ptr<QStandardItemModel> tree;
    timeBetween(
        state, nothing,
        [&] {
            tree = buildQtExplorerTree(session.getProject(),
                                       session.getHostServices().getAttributeValueFormatter());
        },
        [&tree] { tree.reset(); });
    countGroupableEntities(state, scale);
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(tenThousand)->Arg(hundredThousand)->Unit(benchmark::kMillisecond);
}

// A thousand entities of either project.
void sizesAndThousand(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Args({tenThousand, 1'000})->Args({hundredThousand, 1'000})->Unit(benchmark::kMillisecond);
}

// A tenth of the project: the project of 10,000 has fewer than 10,000 entities that can be copied.
void sizesAndTenth(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Args({tenThousand, 1'000})->Args({hundredThousand, 10'000})->Unit(benchmark::kMillisecond);
}

BENCHMARK(BM_MakeExplorer)->Name("explorer/make")->Apply(sizes)->Arg(million);
// On a million entities the largest group holds some 300,000.
BENCHMARK(BM_RegroupToTopic)->Name("explorer/regroup/to-topic")->Apply(sizes)->Arg(million);
BENCHMARK(BM_RegroupToNone)->Name("explorer/regroup/to-none")->Apply(sizes)->Arg(million);
BENCHMARK(BM_FlipSortOrder)->Name("explorer/sort/flip")->Apply(sizes);
BENCHMARK(BM_FoldGroup)->Name("explorer/fold/group")->Apply(sizes);
BENCHMARK(BM_FoldSubgroup)->Name("explorer/fold/subgroup")->Apply(sizes);
BENCHMARK(BM_SelectAll)->Name("explorer/select/all")->Apply(sizes);
BENCHMARK(BM_SelectNone)->Name("explorer/select/none")->Apply(sizes);
BENCHMARK(BM_SelectOneMore)->Name("explorer/select/one-more")->Apply(sizes);
BENCHMARK(BM_Delete)->Name("explorer/delete")->Apply(sizesAndThousand);
BENCHMARK(BM_UndoDelete)->Name("explorer/undo-delete")->Apply(sizesAndThousand);
BENCHMARK(BM_DeleteSubgroup)->Name("explorer/delete-subgroup")->Apply(sizes);
BENCHMARK(BM_Copy)->Name("explorer/copy")->Apply(sizesAndTenth);
BENCHMARK(BM_Paste)->Name("explorer/paste")->Apply(sizesAndTenth);
BENCHMARK(BM_RebuildGroupable)->Name("explorer/rebuild/groupable")->Apply(sizes);
BENCHMARK(BM_GroupingFloor)->Name("floor/groupable")->Apply(sizes);
BENCHMARK(BM_QtTreePeer)->Name("qt-peer/groupable")->Apply(sizes);

} // namespace
} // namespace benchmarks
