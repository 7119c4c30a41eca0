#include "ExplorerTest.h"
#include "ViolationSite.h"

#include "Common/AssertionViolation.h"

namespace project_explorer::test
{
namespace
{

using aec::PropertyAssignmentKey;

common::UUID uuid(std::uint8_t number)
{
    return common::UUID::fromFields(number, 0, 0, {});
}

// A host catalog that offers every key, as the reference host offers none with a path.
class COpenCatalog : public aec::IPropertyCatalog
{
public:
    bool isAvailable(const aec::IProject&, const PropertyAssignmentKey&) const override { return true; }
    std::wstring getDisplayName(const PropertyAssignmentKey&) const override { return L"Any"; }
};

class ProjectExplorerGroupingModelTest : public ExplorerTest
{
protected:
    std::unique_ptr<aec::IProjectExplorerGroupingModel> model =
        groupingModelFactory.createGroupingModel(groupInfo(L"Tables").id, {PropertyAssignmentKey::topic()}, project, catalog);
    CSignalCounter changed{model->changedSignal()};
    const std::wstring topicText = PropertyAssignmentKey::topic().getProperty().toWString();
};

TEST_F(ProjectExplorerGroupingModelTest, AvailabilityFollowsTheCatalogAndTheReservedKeyIsAlwaysAvailable)
{
    EXPECT_EQ(model->getGroupingKey(), PropertyAssignmentKey::noGrouping());
    EXPECT_EQ(model->getGroupingKeyText(), std::nullopt);
    EXPECT_EQ(model->getSortOrder(), aec::IProjectExplorerGroupingModel::ascending);
    EXPECT_FALSE(model->isGroupingKeyAvailable(PropertyAssignmentKey::topic()));
    EXPECT_TRUE(model->getGroupingOptions().empty());

    project.addTopic(L"Level 1");
    EXPECT_TRUE(model->isGroupingKeyAvailable(PropertyAssignmentKey::topic()));
    EXPECT_EQ(model->getGroupingOptions(), (std::vector<aec::GroupingOption>{{topicText, catalog.getDisplayName(PropertyAssignmentKey::topic())}}));

    const auto bare = groupingModelFactory.createGroupingModel(groupInfo(L"Images").id, {}, project, catalog);
    EXPECT_TRUE(bare->isGroupingKeyAvailable(PropertyAssignmentKey::noGrouping()));
    EXPECT_FALSE(bare->isGroupingKeyAvailable(PropertyAssignmentKey::topic()));
    bare->setGroupingKeyText(std::nullopt);
    EXPECT_EQ(bare->getGroupingKey(), PropertyAssignmentKey::noGrouping());
}

TEST_F(ProjectExplorerGroupingModelTest, SignalsOnlyRealChangesAndTextReadsBackAsTheSameKey)
{
    project.addTopic(L"Level 1");
    for (int repeat = 0; repeat < 2; ++repeat)
    {
        model->setSortOrder(aec::IProjectExplorerGroupingModel::descending);
        model->setGroupingKey(PropertyAssignmentKey::topic());
        model->setGroupingKeyText(model->getGroupingKeyText());
    }
    EXPECT_EQ(model->getGroupingKeyText(), topicText);
    EXPECT_EQ(changed.count(), 2);

    const COpenCatalog open;
    const PropertyAssignmentKey deep({uuid(1), uuid(2)}, uuid(3));
    const auto deepModel = groupingModelFactory.createGroupingModel(groupInfo(L"Tables").id, {deep}, project, open);
    const std::wstring deepText = uuid(1).toWString() + L"#" + uuid(2).toWString() + L"#" + uuid(3).toWString();
    deepModel->setGroupingKeyText(deepText);
    EXPECT_EQ(deepModel->getGroupingKey(), deep);
    EXPECT_EQ(deepModel->getGroupingKeyText(), deepText);
}

TEST_F(ProjectExplorerGroupingModelTest, UnavailableOrUnreadableKeyIsRefusedAndChangesNothing)
{
    const std::string byValue =
        violationSite<common::EPreconditionViolation>([this] { model->setGroupingKey(PropertyAssignmentKey::topic()); });
    const std::string byText = violationSite<common::EPreconditionViolation>([this] { model->setGroupingKeyText(topicText); });
    EXPECT_EQ(siteFile(byValue), "ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerGroupingModel.cpp");
    EXPECT_EQ(byText, byValue);

    project.addTopic(L"Level 1");
    for (const std::wstring& text : {std::wstring(), std::wstring(L"Topic"), topicText + L"#", L"#" + topicText, topicText.substr(1)})
        EXPECT_THROW(model->setGroupingKeyText(text), std::bad_optional_access);

    EXPECT_EQ(model->getGroupingKey(), PropertyAssignmentKey::noGrouping());
    EXPECT_EQ(changed.count(), 0);
}

} // namespace
} // namespace project_explorer::test
