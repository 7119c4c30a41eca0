#include "ProjectExplorerLib/ProjectExplorerEntitySelection.h"

#include "ViolationSite.h"

#include "Common/AssertionViolation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using aec::EntityId;
using aec::EntityIdSet;

EntityId entity(int number)
{
    common::UUID::Bytes bytes{};
    bytes[15] = static_cast<std::uint8_t>(number);
    return EntityId(common::UUID(bytes));
}

struct SelectionChange
{
    EntityIdSet added;
    EntityIdSet removed;
    EntityIdSet selectionSeen;
};

class ProjectExplorerEntitySelectionTest : public ::testing::Test
{
protected:
    ProjectExplorerEntitySelectionTest()
    {
        connection = selection.selectionChangedSignal().connect([this](const EntityIdSet& added, const EntityIdSet& removed) {
            changes.push_back({added, removed, selection.getSelection()});
        });
    }

    project_explorer::CProjectExplorerEntitySelection selection;
    std::vector<SelectionChange> changes;
    boost::signals2::scoped_connection connection;
};

TEST_F(ProjectExplorerEntitySelectionTest, SignalsExactlyWhatChangedAfterStoringIt)
{
    selection.setSelection({entity(1), entity(2)});
    selection.setSelection({entity(2), entity(3)});
    selection.setSelection({});

    ASSERT_EQ(changes.size(), 3u);
    EXPECT_EQ(changes[0].added, (EntityIdSet{entity(1), entity(2)}));
    EXPECT_TRUE(changes[0].removed.empty());
    EXPECT_EQ(changes[0].selectionSeen, (EntityIdSet{entity(1), entity(2)}));

    EXPECT_EQ(changes[1].added, EntityIdSet{entity(3)});
    EXPECT_EQ(changes[1].removed, EntityIdSet{entity(1)});
    EXPECT_EQ(changes[1].selectionSeen, (EntityIdSet{entity(2), entity(3)}));

    EXPECT_TRUE(changes[2].added.empty());
    EXPECT_EQ(changes[2].removed, (EntityIdSet{entity(2), entity(3)}));
    EXPECT_TRUE(selection.getSelection().empty());
}

TEST_F(ProjectExplorerEntitySelectionTest, SameContentSignalsNothing)
{
    selection.setSelection({entity(1)});
    selection.setSelection({entity(1)});
    selection.changeSelection({entity(1)}, {entity(7)});
    selection.changeSelection({}, {});
    selection.setSelection({});
    selection.setSelection({});

    ASSERT_EQ(changes.size(), 2u);
    EXPECT_EQ(changes[1].removed, EntityIdSet{entity(1)});
}

TEST_F(ProjectExplorerEntitySelectionTest, ChangeAddsAndRemovesInOneSignal)
{
    selection.setSelection({entity(1), entity(2)});
    selection.changeSelection({entity(3), entity(4)}, {entity(1), entity(9)});

    ASSERT_EQ(changes.size(), 2u);
    EXPECT_EQ(changes[1].added, (EntityIdSet{entity(3), entity(4)}));
    EXPECT_EQ(changes[1].removed, EntityIdSet{entity(1)});
    EXPECT_EQ(selection.getSelection(), (EntityIdSet{entity(2), entity(3), entity(4)}));
}

TEST_F(ProjectExplorerEntitySelectionTest, ChangeWithAnEntityToAddAndToRemoveIsRefused)
{
    selection.setSelection({entity(1)});

    const std::string site = project_explorer::test::violationSite<common::EPreconditionViolation>(
        [this] { selection.changeSelection({entity(2), entity(3)}, {entity(3)}); });

    EXPECT_EQ(project_explorer::test::siteFile(site),
              "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerEntitySelection.cpp");
    EXPECT_EQ(selection.getSelection(), EntityIdSet{entity(1)});
    EXPECT_EQ(changes.size(), 1u);
}

} // namespace
