#include "AecModel/OperationGuardSource.h"
#include "AecModel/Project.h"
#include "AecModel/UndoStepLabel.h"

#include "aec/EditCommand.h"
#include "aec/OperationGuard.h"
#include "aec/Transaction.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace aec::model
{
namespace
{

using Names = std::vector<std::string>;

// A project built without transactions, so that it starts with an empty undo history.
class TransactionTest : public ::testing::Test
{
protected:
    TransactionTest()
    {
        topic = project.addTopic(L"Level 1");
        otherTopic = project.addTopic(L"Level 2");
        for (const wchar_t* name : {L"Sheet 1", L"Sheet 2", L"Sheet 3", L"Sheet 4"})
            sheets.push_back(project.addEntity(EntityCollection::Sheets, name, topic));
        material = project.addEntity(EntityCollection::Materials, L"Brick");
        project.setEntityProperty(material, "density", L"1800");
    }

    std::unique_ptr<ITransaction> open(const std::string& name)
    {
        return project.getTransactionHost().openTransaction(name);
    }

    // Touches every kind of change and the collection order in several places.
    void changeEverything()
    {
        project.removeEntity(sheets[1]);
        project.removeEntity(sheets[2]);
        project.addEntity(EntityCollection::Sheets, L"Sheet 5");
        project.renameEntity(sheets[0], L"Sheet 1 (revised)");
        project.setEntityTopic(sheets[3], otherTopic);
        project.setEntityProperty(material, "density", L"1900");
        project.setEntityProperty(material, "colour", L"red");
        project.removeEntity(EntityId(topic.uuid()));
        project.removeEntity(sheets[0]);
    }

    CProject project;
    TopicId topic;
    TopicId otherTopic;
    EntityIdList sheets;
    EntityId material;
};

TEST_F(TransactionTest, CommitMakesOneNamedStepThatUndoAndRedoReplay)
{
    const std::string before = project.canonicalDump();
    auto transaction = open("Change everything");
    changeEverything();
    transaction->commit();
    transaction.reset();
    const std::string after = project.canonicalDump();
    ASSERT_NE(after, before);
    EXPECT_EQ(project.getUndoHistory().getUndoNames(), Names{"Change everything"});

    project.getUndoHistory().undo();
    EXPECT_EQ(project.canonicalDump(), before);
    EXPECT_FALSE(project.getUndoHistory().canUndo());
    EXPECT_EQ(project.getUndoHistory().getRedoName(), "Change everything");

    project.getUndoHistory().redo();
    EXPECT_EQ(project.canonicalDump(), after);
    EXPECT_FALSE(project.getUndoHistory().canRedo());
}

TEST_F(TransactionTest, DestructionWithoutCommitRestoresTheProjectExactly)
{
    {
        auto earlier = open("Earlier step");
        project.renameEntity(sheets[3], L"Sheet D");
        earlier->commit();
    }
    const std::string before = project.canonicalDump();
    {
        auto transaction = open("Abandoned");
        changeEverything();
        ASSERT_NE(project.canonicalDump(), before);
    }
    EXPECT_EQ(project.canonicalDump(), before);
    EXPECT_EQ(project.getUndoHistory().getUndoNames(), Names{"Earlier step"});
    EXPECT_FALSE(project.getUndoHistory().canRedo());
}

TEST_F(TransactionTest, NestedTransactionJoinsTheOuterOne)
{
    const std::string before = project.canonicalDump();
    auto outer = open("Outer");
    project.renameEntity(sheets[0], L"Outer rename");
    const std::string afterOuterChange = project.canonicalDump();
    {
        auto abandoned = open("Inner abandoned");
        project.removeEntity(sheets[1]);
    }
    EXPECT_EQ(project.canonicalDump(), afterOuterChange)
        << "an inner rollback takes back only its own changes";
    {
        auto inner = open("Inner kept");
        project.removeEntity(sheets[2]);
        inner->commit();
    }
    EXPECT_FALSE(project.getUndoHistory().canUndo()) << "nothing is undoable while the outer one is open";
    outer->commit();
    EXPECT_EQ(project.getUndoHistory().getUndoNames(), Names{"Outer"});

    project.getUndoHistory().undo();
    EXPECT_EQ(project.canonicalDump(), before);
}

TEST_F(TransactionTest, OuterRollbackTakesBackCommittedInnerChanges)
{
    const std::string before = project.canonicalDump();
    {
        auto outer = open("Outer");
        auto inner = open("Inner");
        project.removeEntity(sheets[0]);
        inner->commit();
    }
    EXPECT_EQ(project.canonicalDump(), before);
    EXPECT_FALSE(project.getUndoHistory().canUndo());
}

TEST_F(TransactionTest, MisuseIsRefused)
{
    auto outer = open("Outer");
    auto inner = open("Inner");
    EXPECT_THROW(outer->commit(), common::EPreconditionViolation) << "the inner one is still open";
    inner->commit();
    EXPECT_THROW(inner->commit(), common::EPreconditionViolation);
    EXPECT_THROW(project.getUndoHistory().undo(), common::EPreconditionViolation);
    outer->commit();
    EXPECT_THROW(project.getUndoHistory().redo(), common::EPreconditionViolation);
}

TEST_F(TransactionTest, HistoryKeepsStepsInOrderAndLosesRedoOnNewWork)
{
    for (const char* name : {"First", "Second", "Third"})
    {
        auto transaction = open(name);
        project.renameEntity(sheets[0], std::wstring(name, name + std::char_traits<char>::length(name)));
        transaction->commit();
    }
    {
        auto empty = open("Changes nothing");
        project.renameEntity(sheets[0], L"Third");
        empty->commit();
    }
    CUndoHistory& history = project.getUndoHistory();
    EXPECT_EQ(history.getUndoNames(), (Names{"Third", "Second", "First"}))
        << "an empty transaction leaves no step";
    history.undo();
    history.undo();
    EXPECT_EQ(project.findEntity(sheets[0])->getName(), L"First");
    EXPECT_EQ(history.getRedoNames(), (Names{"Second", "Third"}));

    {
        auto transaction = open("Fourth");
        project.renameEntity(sheets[1], L"Other");
        transaction->commit();
    }
    EXPECT_EQ(history.getUndoNames(), (Names{"Fourth", "First"}));
    EXPECT_FALSE(history.canRedo());

    project.renameEntity(sheets[1], L"Direct");
    EXPECT_FALSE(history.canUndo()) << "a change outside transactions invalidates every step";
}

// The history shows a step by what the user did to what, not by the transaction's name.
TEST_F(TransactionTest, StepLabelsNameWhatTheUserDid)
{
    const auto label = [this](const std::string& name, const auto& change)
    {
        auto transaction = open(name);
        change();
        transaction->commit();
        return undoStepLabel(project.getUndoHistory().getUndoSteps().back(), project);
    };
    EXPECT_EQ(label("Edit", [this] { project.setEntityProperty(material, "density", L"1900"); }),
              "Edit the properties of material “Brick”");
    // Naming and filling in an entity that the step made is part of making it.
    EXPECT_EQ(label("Paste",
                    [this]
                    {
                        const EntityId made = project.addEntity(EntityCollection::Materials, L"Oak");
                        project.renameEntity(made, L"Oak 2");
                        project.setEntityProperty(made, "density", L"700");
                    }),
              "Paste material “Oak 2”");
    EXPECT_EQ(label("Move",
                    [this]
                    {
                        project.setEntityTopic(sheets[0], otherTopic);
                        project.setEntityTopic(sheets[1], otherTopic);
                    }),
              "Change the topic of 2 entities");
}

TEST_F(TransactionTest, EditingServiceMakesItsOwnRenameStep)
{
    IEditingService& editing = project.getEditingService();
    editing.beginEdit();
    auto command = editing.createCommand(sheets[0]);
    command->setName(L"Renamed directly");
    editing.submit(*command);
    editing.endEdit(true);
    EXPECT_EQ(project.findEntity(sheets[0])->getName(), L"Renamed directly");
    EXPECT_EQ(project.getUndoHistory().getUndoName(), "Rename");

    editing.beginEdit();
    command = editing.createCommand(sheets[1]);
    command->setName(L"Not kept");
    editing.submit(*command);
    EXPECT_EQ(project.findEntity(sheets[1])->getName(), L"Not kept");
    editing.endEdit(false);
    EXPECT_EQ(project.findEntity(sheets[1])->getName(), L"Sheet 2");
    EXPECT_EQ(project.getUndoHistory().getUndoNames(), Names{"Rename"});

    project.getUndoHistory().undo();
    EXPECT_EQ(project.findEntity(sheets[0])->getName(), L"Sheet 1");
}

TEST_F(TransactionTest, EditingServiceHoldsNamesToTheRuleOfEveryRename)
{
    IEditingService& editing = project.getEditingService();
    const std::string before = project.canonicalDump();
    for (const std::wstring name : {L"Sheet 2", L"  "})
    {
        editing.beginEdit();
        auto command = editing.createCommand(sheets[0]);
        command->setName(name);
        EXPECT_THROW(editing.submit(*command), common::EException) << "name taken or blank";
        editing.endEdit(false);
    }
    EXPECT_EQ(project.canonicalDump(), before);

    editing.beginEdit();
    auto command = editing.createCommand(sheets[0]);
    command->setName(L"Sheet 1");
    editing.submit(*command);
    editing.endEdit(true);
    EXPECT_FALSE(project.getUndoHistory().canUndo()) << "keeping its own name is no change";
}

TEST_F(TransactionTest, OperationGuardAllowsOneOperationAtATime)
{
    const COperationGuardSource source;
    COperationHost& operations = project.getOperationHost();
    {
        const auto guard = source.createGuard(operations);
        EXPECT_TRUE(operations.isOperationRunning());
        try
        {
            (void)source.createGuard(operations);
            ADD_FAILURE() << "a second operation started";
        }
        catch (const common::EException& refusal)
        {
            EXPECT_NE(std::string(refusal.what()).find("still in progress"), std::string::npos);
        }
        EXPECT_TRUE(operations.isOperationRunning()) << "the refusal does not end the running operation";
    }
    EXPECT_FALSE(operations.isOperationRunning());
    EXPECT_NO_THROW((void)source.createGuard(operations));
}

} // namespace
} // namespace aec::model
