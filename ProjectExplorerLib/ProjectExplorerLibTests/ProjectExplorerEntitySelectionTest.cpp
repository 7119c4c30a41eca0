#include "ViolationSite.h"

#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"

#include "Common/AssertionViolation.h"

namespace project_explorer::test
{
namespace
{

using aec::EntityIdSet;

aec::EntityId entity(std::uint8_t number)
{
    return aec::EntityId(common::UUID::fromFields(number, 0, 0, {}));
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

} // namespace
} // namespace project_explorer::test
