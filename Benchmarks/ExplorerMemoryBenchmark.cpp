// The heap that the explorer's own structures take per entity: the live bytes that making an
// explorer adds to a process that already holds the project and its session (the project itself
// is not counted), once as made and once more after the first selection, which makes each group's
// table of which subgroup holds which entity.

#include "AecModel/Project.h"
#include "AllocationCounter.h"
#include "HostServices/HostServices.h"
#include "ScaleSession.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntitySelection.h"
#include "aec/ProjectExplorerFactory.h"

#include <benchmark/benchmark.h>
#include <cstdint>

namespace benchmarks
{
namespace
{

double liveBytesSince(std::size_t before)
{
    return static_cast<double>(liveHeapBytes()) - static_cast<double>(before);
}

void BM_ExplorerBytesPerEntity(benchmark::State& state)
{
    CScaleSession& scale = CScaleSession::of(static_cast<std::size_t>(state.range(0)));
    aec::host::CExplorerSession& session = scale.session();
    aec::model::CProject& project = session.getProject();
    const aec::EntityIdSet one{*scale.allEntities().begin()};
    double made = 0.0;
    double afterSelection = 0.0;
    for (auto _ : state)
    {
        const std::size_t before = liveHeapBytes();
        auto explorer = session.getExplorerFactory().createProjectExplorer(
            project.getPreferences(), project, session.getHostServices().getPropertyCatalog());
        made = liveBytesSince(before);

        state.PauseTiming();
        explorer->getEntitySelection().changeSelection(one, {});
        explorer->getEntitySelection().changeSelection({}, one);
        afterSelection = liveBytesSince(before);
        explorer.reset();
        state.ResumeTiming();
    }
    const auto entities = static_cast<double>(scale.entityCount());
    state.counters["bytesPerEntity"] = made / entities;
    state.counters["bytesPerEntitySelected"] = afterSelection / entities;
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(BM_ExplorerBytesPerEntity)
    ->Name("memory/explorer")
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace benchmarks
