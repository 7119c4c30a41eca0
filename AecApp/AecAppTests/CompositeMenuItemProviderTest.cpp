#include "AecApp/CompositeMenuItemProvider.h"

#include "AecApp/SeparatorMenuItemProvider.h"
#include "Common/AssertionViolation.h"
#include "CommonTests/ViolationSite.h"
#include "FixedMenuItemProvider.h"
#include "TableTranslation.h"

namespace aecapp_tests
{
namespace
{

using aec::CCompositeMenuItemProvider;
using Texts = std::vector<std::wstring>;

Texts menuOf(const std::vector<CCompositeMenuItemProvider::ProviderPtr>& parts)
{
    return describe(CCompositeMenuItemProvider(parts).getMenuItems(TableTranslation()));
}

TEST(CompositeMenuItemProviderTest, ConcatenatesPartsAndDropsOnlyOneTrailingSeparator)
{
    EXPECT_EQ(menuOf({}), Texts{});
    EXPECT_EQ(menuOf({fixedItems({L"-"})}), Texts{});
    EXPECT_EQ(menuOf({fixedItems({L"Open"}), fixedItems({}), fixedItems({L"Cut", L"Copy"})}),
              (Texts{L"Open", L"Cut", L"Copy"}));
    EXPECT_EQ(menuOf({fixedItems({L"Open"}), fixedItems({L"-"})}), Texts{L"Open"});
    EXPECT_EQ(menuOf({fixedItems({L"Open", L"-"}), fixedItems({L"-"})}), (Texts{L"Open", L"-"}));
    EXPECT_EQ(menuOf({fixedItems({L"-"}), fixedItems({L"Open"})}), (Texts{L"-", L"Open"}));
    EXPECT_EQ(menuOf({fixedItems({L"Open"}), fixedItems({L"-", L"-"}), fixedItems({L"Cut"})}),
              (Texts{L"Open", L"-", L"-", L"Cut"}));

    const auto message = common::test::violationSite<common::EPreconditionViolation>(
        [] {
            menuOf({fixedItems({}), nullptr});
        });
    EXPECT_EQ(common::test::siteFile(message), "AecApp/AecApp/CompositeMenuItemProvider.cpp");
}

TEST(SeparatorMenuItemProviderTest, YieldsOneBareSeparator)
{
    const auto items = aec::composite_menu_item_provider_details::CSeparatorMenuItemProvider().getMenuItems(
        TableTranslation());
    ASSERT_EQ(items.size(), 1u);
    EXPECT_TRUE(items[0].isSeparator());
    EXPECT_FALSE(items[0].isEnabled());
    EXPECT_TRUE(items[0].getText().empty());
    EXPECT_TRUE(items[0].getIdentifier().empty());
}

} // namespace
} // namespace aecapp_tests
