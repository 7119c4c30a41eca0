#include "AecApp/ContextMenuProvider.h"

#include "Common/AssertionViolation.h"
#include "CommonTests/ViolationSite.h"
#include "FixedMenuItemProvider.h"
#include "RecordingGui.h"
#include "TableTranslation.h"

namespace aecapp_tests
{
namespace
{

using Texts = std::vector<std::wstring>;

// A resolver with a fixed strategy that notes each request in a shared log.
class FixedResolver : public aec::IContextMenuStrategyResolver
{
public:
    FixedResolver(aec::ContextMenuStrategy strategy, std::vector<std::string>& log)
        : strategy_(std::move(strategy)), log_(log)
    {
    }
    int getStrategyKind() const override { return 2; }
    aec::ContextMenuStrategy resolve(const std::shared_ptr<aec::IMenuItemProvider>& extra) const override
    {
        log_.push_back(extra ? "resolve with extra" : "resolve");
        return strategy_;
    }

private:
    aec::ContextMenuStrategy strategy_;
    std::vector<std::string>& log_;
};

class ContextMenuProviderTest : public ::testing::Test
{
protected:
    ContextMenuProviderTest()
    {
        started = provider.userInputStartedSignal().connect([this] { log.push_back("started"); });
        finished = provider.userInputFinishedSignal().connect([this] { log.push_back("finished"); });
    }
    void resolveTo(aec::ContextMenuStrategy strategy)
    {
        provider.setStrategyResolver(std::make_shared<FixedResolver>(std::move(strategy), log));
    }

    RecordingGui gui;
    TableTranslation translation;
    aec::CContextMenuProvider provider{&gui, translation};
    std::vector<std::string> log;
    boost::signals2::scoped_connection started;
    boost::signals2::scoped_connection finished;
};

TEST_F(ContextMenuProviderTest, ShowsTheProvidersDividedBySeparatorsAsUserInput)
{
    resolveTo({fixedItems({L"Open"}), fixedItems({L"Cut", L"Copy"}), fixedItems({L"-", L"Delete"}),
               fixedItems({})});
    provider.showMenu({3.0, 4.5});

    ASSERT_EQ(gui.shownMenus.size(), 1u);
    EXPECT_EQ(describe(gui.shownMenus[0].first),
              (Texts{L"Open", L"-", L"Cut", L"Copy", L"-", L"-", L"Delete"}));
    EXPECT_EQ(gui.shownMenus[0].second, (aec::MbCartPoint{3.0, 4.5}));
    EXPECT_EQ(log, (std::vector<std::string>{"started", "resolve", "finished"}));
}

TEST_F(ContextMenuProviderTest, ShowsWithTheLatestResolverOnlyAndNothingWithout)
{
    provider.showMenu({});
    EXPECT_TRUE(gui.shownMenus.empty());
    EXPECT_TRUE(log.empty());

    resolveTo({fixedItems({L"Open"})});
    resolveTo({fixedItems({L"Paste"})});
    provider.showMenu({});
    EXPECT_EQ(describe(gui.shownMenus.at(0).first), Texts{L"Paste"});

    const auto message = common::test::violationSite<common::EPreconditionViolation>(
        [this] { aec::CContextMenuProvider withoutGui(nullptr, translation); });
    EXPECT_EQ(common::test::siteFile(message), "AecApp/AecApp/ContextMenuProvider.cpp");
}

} // namespace
} // namespace aecapp_tests
