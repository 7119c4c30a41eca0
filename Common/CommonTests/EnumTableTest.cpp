#include "Common/EnumTable.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

enum class ESortOrder
{
    ascending,
    descending,
    unsorted
};

template <class Action>
std::string conversionError(Action action)
{
    try
    {
        action();
    }
    catch (const enum_utils::exception& error)
    {
        EXPECT_NE(dynamic_cast<const enum_utils::bad_conversion*>(&error), nullptr);
        return error.what();
    }
    return "no error";
}

TEST(EnumTableTest, ConvertsBothWaysAndSaysWhatFailed)
{
    const enum_utils::CEnumTable<ESortOrder> names{{ESortOrder::ascending, "ascending"},
                                                   {ESortOrder::descending, "descending"}};
    EXPECT_EQ(names.valueOf("descending"), ESortOrder::descending);
    EXPECT_EQ(names.keyOf(ESortOrder::ascending), "ascending");
    EXPECT_EQ(conversionError([&] { names.valueOf("Descending"); }), "No enum value matches the key");
    EXPECT_EQ(conversionError([&] { names.keyOf(ESortOrder::unsorted); }), "No key matches the enum value");
}

TEST(EnumTableTest, TwoKeysForOneValueReadButCannotBeWritten)
{
    const enum_utils::CEnumTable<ESortOrder, wchar_t> withAlias{{ESortOrder::ascending, L"ascending"},
                                                                {ESortOrder::descending, L"descending"},
                                                                {ESortOrder::ascending, L"up"}};
    EXPECT_EQ(withAlias.valueOf(L"up"), ESortOrder::ascending);
    EXPECT_EQ(withAlias.valueOf(L"ascending"), ESortOrder::ascending);

    const std::string ambiguous = "Ambiguous reverse conversion (multiple enum entries match the same value)";
    EXPECT_EQ(conversionError([&] { withAlias.keyOf(ESortOrder::descending); }), ambiguous);
    EXPECT_EQ(conversionError([&] { withAlias.keyOf(ESortOrder::descending); }), ambiguous)
        << "a failed build of the reverse table was taken for a finished one";
}

} // namespace
