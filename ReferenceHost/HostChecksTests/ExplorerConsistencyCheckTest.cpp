#include "HostChecks/ExplorerConsistencyCheck.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "Common/UUID.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "aec/ChangeNotificationBatch.h"
#include "aec/Commands.h"
#include "aec/EntityTypes.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/PropertyAssignmentKey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>

namespace aec::host
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Optional;

// A session over the sample project with sheets grouped by topic and tables by topic, descending.
class ExplorerConsistencyCheckTest : public ::testing::Test
{
protected:
    ExplorerConsistencyCheckTest()
    {
        session.open(model::buildSampleProject());
        group(0).getGroupingModel().setGroupingKey(PropertyAssignmentKey::topic());
        group(1).getGroupingModel().setGroupingKey(PropertyAssignmentKey::topic());
        group(1).getGroupingModel().setSortOrder(IProjectExplorerGroupingModel::descending);
    }

    IProjectExplorerGroup& group(std::ptrdiff_t index)
    {
        return *std::next(session.getExplorer().getGroups().begin(), index);
    }
    model::CProject& project() { return session.getProject(); }
    EntityId firstSheet() { return project().getEntities(EntityCollection::Sheets).front(); }

    CExplorerSession session{7};
};

TEST_F(ExplorerConsistencyCheckTest, AgreesWithAnExplorerThatFollowsItsProject)
{
    const CExplorerConsistencyCheck check(session);
    EXPECT_EQ(check.findDifference(), std::nullopt);

    // Names that the natural order finds equal share a subgroup named after the first of them.
    const TopicId shouting = project().addTopic(L"LEVEL 2");
    project().setEntityTopic(firstSheet(), shouting);
    project().setEntityTopic(project().getEntities(EntityCollection::Tables).back(), shouting);
    EXPECT_EQ(check.findDifference(), std::nullopt);

    session.getPanel().toggleGroup(0);
    session.getPanel().toggleSubgroup(0, 2);
    session.getPanel().changeSelection({firstSheet()}, {});
    EntityId created;
    session.getEntityController().createEntity(entity_types::table(), created);
    session.getEntityController().renameEntity(created, L"Room list 3");
    EXPECT_EQ(check.findDifference(), std::nullopt);

    session.getUndoHistory().undo();
    session.getUndoHistory().undo();
    EXPECT_NO_THROW(check.verify());
}

TEST_F(ExplorerConsistencyCheckTest, FindsATreeThatMissedAChange)
{
    const CExplorerConsistencyCheck check(session);
    IChangeNotificationBatch& batch = project().getChangeNotificationBatch();
    batch.open();
    project().setEntityTopic(firstSheet(), std::nullopt);
    EXPECT_THAT(check.findDifference(), Optional(HasSubstr("Group \"Sheets\"")));
    EXPECT_THROW(check.verify(), common::EException);

    batch.close();
    EXPECT_EQ(check.findDifference(), std::nullopt) << "the tree heard of the change at last";

    batch.open();
    project().removeEntity(project().getEntities(EntityCollection::Images).back());
    EXPECT_THAT(check.findDifference(), Optional(HasSubstr("Group \"Images\"")));
    batch.close();
}

TEST_F(ExplorerConsistencyCheckTest, FindsAStateRecordThatMissedAChange)
{
    // A listener that fails keeps the listeners after it from hearing of the change; the check's
    // own monitor listens last.
    IProjectExplorerGroup& sheets = group(0);
    const boost::signals2::scoped_connection failing =
        sheets.expandedChangedSignal().connect([] { throw common::EException("a listener failed"); });
    const CExplorerConsistencyCheck check(session);

    EXPECT_THROW(session.getPanel().toggleGroup(0), common::EException);
    EXPECT_THAT(
        check.findDifference(),
        Optional(HasSubstr("The state monitor's record has group \"Sheets\" folded, which the tree shows "
                           "unfolded")));
}

TEST_F(ExplorerConsistencyCheckTest, FindsAStoredStateThatDiffersFromTheTree)
{
    session.getPanel().toggleGroup(0);
    const CExplorerConsistencyCheck check(session);
    ASSERT_EQ(check.findDifference(), std::nullopt);
    ProjectExplorerState stored = project().getPreferences().getProjectExplorerState().value();

    ProjectExplorerState missingSubgroup = stored;
    missingSubgroup.at(group(0).getId())
        .subgroupExpanded.erase(missingSubgroup.at(group(0).getId()).subgroupExpanded.begin());
    project().getPreferences().setProjectExplorerState(missingSubgroup);
    EXPECT_THAT(check.findDifference(), Optional(HasSubstr("The stored explorer state lacks subgroup")));

    ProjectExplorerState otherOrder = stored;
    otherOrder.at(group(1).getId()).sortOrder = IProjectExplorerGroupingModel::ascending;
    project().getPreferences().setProjectExplorerState(otherOrder);
    EXPECT_THAT(check.findDifference(), Optional(HasSubstr("sort order 1 for group \"Tables\"")));
}

TEST_F(ExplorerConsistencyCheckTest, FindsASelectionOrCommandsThatDisagreeWithTheTree)
{
    const CExplorerConsistencyCheck check(session);
    const EntityId unknown(common::UUID::generate());
    session.getPanel().changeSelection({unknown}, {});
    EXPECT_THAT(check.findDifference(),
                Optional(HasSubstr("The selection holds {" + unknown.uuid().toString() + "}")));

    session.getPanel().changeSelection({}, {unknown});
    session.getGui().enableCommand(commands::cut, true);
    EXPECT_THAT(check.findDifference(), Optional(HasSubstr("Cut is enabled while nothing is selected")));

    session.getGui().enableCommand(commands::cut, false);
    session.getGui().enableCommand(commands::paste, true);
    EXPECT_THAT(check.findDifference(),
                Optional(HasSubstr("Paste is enabled while the clipboard holds no project entities")));
}

} // namespace
} // namespace aec::host
