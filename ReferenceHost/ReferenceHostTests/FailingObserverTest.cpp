#include "AecModel/Project.h"
#include "AecModel/UndoHistory.h"
#include "Common/Exception.h"
#include "aec/ObjectEvents.h"
#include "aec/Transaction.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace aec::model
{
namespace
{

// An observer of the project that fails the next times it is told of a change, as an explorer
// does whose host services fail while it follows the project.
class CFailingObserver final : public IObjectEvents
{
public:
    explicit CFailingObserver(CProject& project) : project_(project)
    {
        project_.getObjectEvents().addObserver(*this);
    }
    ~CFailingObserver() override { project_.getObjectEvents().removeObserver(*this); }
    CFailingObserver(const CFailingObserver&) = delete;
    CFailingObserver& operator=(const CFailingObserver&) = delete;

    void onProjectOpened() override {}
    void onObjectsChanged(std::uint32_t, std::uint32_t, const EntityIdSet& changed,
                          const EntityIdSet&) override
    {
        heard.push_back(project_.canonicalDump());
        heardChanged.push_back(changed);
        if (failures > 0)
        {
            --failures;
            throw common::EException("the observer cannot follow");
        }
    }
    void onProjectClosing() override {}

    int failures = 0;
    // The project as each event found it, and what it said had changed.
    std::vector<std::string> heard;
    std::vector<EntityIdSet> heardChanged;

private:
    CProject& project_;
};

// A project with one step to undo and one to redo, and an observer that fails when told to.
class FailingObserverTest : public ::testing::Test
{
protected:
    FailingObserverTest()
    {
        sheet = project.addEntity(EntityCollection::Sheets, L"Sheet 1");
        rename(L"Sheet 2", "Rename to 2");
        rename(L"Sheet 3", "Rename to 3");
        project.getUndoHistory().undo();
        before = project.canonicalDump();
        observer = std::make_unique<CFailingObserver>(project);
    }

    void rename(const std::wstring& name, const std::string& step)
    {
        const std::unique_ptr<ITransaction> transaction = project.getTransactionHost().openTransaction(step);
        project.renameEntity(sheet, name);
        transaction->commit();
    }

    // A rename whose commit the observer cannot follow must leave the project and its undo steps
    // as they were.
    void expectFailedRename()
    {
        EXPECT_THROW(rename(L"Sheet 4", "Rename to 4"), common::EException);
        EXPECT_EQ(project.canonicalDump(), before);
        EXPECT_EQ(project.getUndoHistory().getUndoNames(), std::vector<std::string>{"Rename to 2"});
    }

    CProject project;
    EntityId sheet;
    std::string before;
    std::unique_ptr<CFailingObserver> observer;
};

TEST_F(FailingObserverTest, ACommitThatAnObserverCannotFollowChangesNothing)
{
    observer->failures = 1;
    expectFailedRename();
    EXPECT_EQ(project.getUndoHistory().getRedoNames(), std::vector<std::string>{"Rename to 3"})
        << "the failed commit's step does not end the redo";
    ASSERT_EQ(observer->heard.size(), 2u) << "the observer hears of the change and then of its rollback";
    EXPECT_NE(observer->heard[0], before);
    EXPECT_EQ(observer->heard[1], before);
    EXPECT_EQ(observer->heardChanged[1], EntityIdSet{sheet});

    rename(L"Sheet 4", "Rename to 4");
    EXPECT_EQ(project.getUndoHistory().getUndoNames(),
              (std::vector<std::string>{"Rename to 4", "Rename to 2"}));
    EXPECT_TRUE(project.getUndoHistory().getRedoNames().empty());
}

TEST_F(FailingObserverTest, ARollbackThatAnObserverCannotFollowStillCompletes)
{
    // The commit's news fails, and so does the news of the rollback that follows.
    observer->failures = 2;
    expectFailedRename();

    {
        const std::unique_ptr<ITransaction> dropped = project.getTransactionHost().openTransaction("Dropped");
        project.renameEntity(sheet, L"Sheet 5");
        project.removeEntity(sheet);
        // Dropping the transaction rolls it back, and the observer fails to follow the rollback.
        observer->failures = 1;
    }
    EXPECT_EQ(project.canonicalDump(), before)
        << "the destroyed transaction rolled back despite the observer";
    EXPECT_EQ(project.getUndoHistory().getUndoNames(), std::vector<std::string>{"Rename to 2"});
}

// An undo or redo that the observer cannot follow is replayed back and keeps its step where it
// was, also when the observer fails the replay back too; the step replays once the observer
// follows again.
TEST_F(FailingObserverTest, AnUndoOrRedoThatAnObserverCannotFollowChangesNothing)
{
    CUndoHistory& history = project.getUndoHistory();
    const auto expectUnchanged = [&]
    {
        EXPECT_EQ(project.canonicalDump(), before);
        EXPECT_EQ(history.getUndoNames(), std::vector<std::string>{"Rename to 2"});
        EXPECT_EQ(history.getRedoNames(), std::vector<std::string>{"Rename to 3"});
    };
    for (const int failures : {1, 2})
    {
        SCOPED_TRACE(failures);
        observer->failures = failures;
        EXPECT_THROW(history.undo(), common::EException);
        expectUnchanged();
        observer->failures = failures;
        EXPECT_THROW(history.redo(), common::EException);
        expectUnchanged();
    }
    ASSERT_EQ(observer->heard.size(), 8u) << "each failed replay is followed by its replay back";
    EXPECT_NE(observer->heard[0], before);
    EXPECT_EQ(observer->heard[1], before);

    history.redo();
    EXPECT_EQ(history.getUndoNames(), (std::vector<std::string>{"Rename to 3", "Rename to 2"}));
    history.undo();
    history.undo();
    EXPECT_EQ(history.getRedoNames(), (std::vector<std::string>{"Rename to 2", "Rename to 3"}));
}

} // namespace
} // namespace aec::model
