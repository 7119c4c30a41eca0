#include "ViolationSite.h"

#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"

#include "Common/AssertionViolation.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace project_explorer::test
{
namespace
{

using aec::EntityIdSet;

// Hosts compile their listeners against these types: plain signals, default mutex included.
static_assert(std::is_same_v<aec::SelectionChangedSignal,
                             boost::signals2::signal<void(const EntityIdSet&, const EntityIdSet&)>>);
static_assert(std::is_same_v<aec::VoidSignal, boost::signals2::signal<void()>>);
static_assert(
    std::is_same_v<aec::EntitiesChangedSignal, boost::signals2::signal<void(const aec::EntityChangeset&)>>);

aec::EntityId entity(std::uint8_t number)
{
    return aec::EntityId(common::UUID::fromFields(number, 0, 0, {}));
}

// `count` entities beyond the 256 of entity(), numbered first, first + step, ...
EntityIdSet numbered(std::uint32_t first, std::uint32_t count, std::uint32_t step)
{
    EntityIdSet entities;
    for (std::uint32_t index = 0; index < count; ++index)
    {
        const std::uint32_t number = first + index * step;
        std::array<std::uint8_t, 8> tail{};
        for (std::size_t byte = 0; byte < 4; ++byte)
            tail[7 - byte] = static_cast<std::uint8_t>(number >> (8 * byte));
        entities.insert(aec::EntityId(common::UUID::fromFields(0, 0, 0, tail)));
    }
    return entities;
}

// Each signal as (added, removed, the selection a listener reads then).
class ProjectExplorerEntitySelectionTest : public ::testing::Test
{
protected:
    CProjectExplorerEntitySelection selection;
    std::vector<std::array<EntityIdSet, 3>> signals;
    boost::signals2::scoped_connection connection = selection.selectionChangedSignal().connect(
        [this](const EntityIdSet& added, const EntityIdSet& removed) {
            signals.push_back({added, removed, selection.getSelection()});
        });
};

TEST_F(ProjectExplorerEntitySelectionTest, SignalsExactlyWhatChangedOnceItIsStored)
{
    selection.setSelection({entity(1), entity(2)});
    selection.setSelection({entity(2), entity(1)});
    selection.changeSelection({entity(3), entity(2)}, {entity(1), entity(9)});
    selection.changeSelection({entity(3)}, {entity(8)});
    selection.setSelection({});

    ASSERT_EQ(signals.size(), 3u);
    EXPECT_EQ(signals[0], (std::array<EntityIdSet, 3>{{{entity(1), entity(2)}, {}, {entity(1), entity(2)}}}));
    EXPECT_EQ(signals[1], (std::array<EntityIdSet, 3>{{{entity(3)}, {entity(1)}, {entity(2), entity(3)}}}));
    EXPECT_EQ(signals[2], (std::array<EntityIdSet, 3>{{{}, {entity(2), entity(3)}, {}}}));
}

TEST_F(ProjectExplorerEntitySelectionTest, ChangeThatAddsAndRemovesOneEntityIsRefused)
{
    selection.setSelection({entity(1)});

    const std::string site = violationSite<common::EPreconditionViolation>(
        [this] { selection.changeSelection({entity(2), entity(3)}, {entity(3)}); });

    EXPECT_EQ(siteFile(site), "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerEntitySelection.cpp");
    EXPECT_EQ(selection.getSelection(), EntityIdSet{entity(1)});
    EXPECT_EQ(signals.size(), 1u);
}

// Changes of every size against the formula they must follow: the selection becomes (selection minus
// to remove) united with to add, and the signal names exactly what entered and what left. Small
// and large sets take different ways through the change (look-ups, walks side by side, handing the
// whole selection over), so the sizes range over all of them.
TEST_F(ProjectExplorerEntitySelectionTest, ChangesOfAnySizeFollowTheSetFormula)
{
    const auto minus = [](const EntityIdSet& from, const EntityIdSet& without)
    {
        EntityIdSet result;
        std::ranges::set_difference(from, without, std::inserter(result, result.end()));
        return result;
    };

    for (const std::uint32_t selected : {0u, 3u, 2000u})
        for (const std::uint32_t adding : {0u, 2u, 1500u})
            for (const std::uint32_t removing : {0u, 1u, 2500u})
            {
                // Both take every other number, one apart, so they never meet; both overlap the selection.
                const EntityIdSet before = numbered(0, selected, 1);
                const EntityIdSet toAdd = numbered(selected / 2 + 1, adding, 2);
                const EntityIdSet toRemove = numbered(selected / 2, removing, 2);
                selection.setSelection(before);
                signals.clear();

                selection.changeSelection(toAdd, toRemove);

                EntityIdSet removed;
                std::ranges::set_intersection(before, toRemove, std::inserter(removed, removed.end()));
                const EntityIdSet added = minus(toAdd, before);
                EntityIdSet after = minus(before, toRemove);
                after.insert(toAdd.begin(), toAdd.end());
                const std::string sizes = fmt::format("{} selected, {} to add, {} to remove", selected, adding, removing);
                EXPECT_EQ(selection.getSelection(), after) << sizes;
                if (added.empty() && removed.empty())
                {
                    EXPECT_TRUE(signals.empty()) << sizes;
                    continue;
                }
                ASSERT_EQ(signals.size(), 1u) << sizes;
                EXPECT_EQ(signals[0], (std::array<EntityIdSet, 3>{{added, removed, after}})) << sizes;
            }

    // Deselecting everything and a little more hands the selection over whole.
    selection.setSelection(numbered(0, 100, 1));
    signals.clear();
    selection.changeSelection({}, numbered(0, 150, 1));
    EXPECT_TRUE(selection.getSelection().empty());
    ASSERT_EQ(signals.size(), 1u);
    EXPECT_EQ(signals[0][1], numbered(0, 100, 1));
}

} // namespace
} // namespace project_explorer::test
