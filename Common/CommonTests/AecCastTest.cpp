#include "aec/Cast.h"

#include <gtest/gtest.h>

namespace cast_test
{

struct IModelObject
{
    virtual ~IModelObject() = default;
};

struct IDoorStyle : IModelObject
{
};

struct IWindowStyle : IModelObject
{
};

struct CDoorStyle : IDoorStyle
{
};

TEST(AecCastTest, ReturnsTheRequestedInterfaceOrNamesBothTypes)
{
    CDoorStyle door;
    IModelObject& object = door;
    const IModelObject& constObject = door;
    EXPECT_EQ(&aec::cast<IDoorStyle>(object), &door);
    EXPECT_EQ(&aec::cast<IDoorStyle>(constObject), &door);
    try
    {
        aec::cast<IWindowStyle>(constObject);
        FAIL() << "a door style was cast to a window style";
    }
    catch (const common::EException& error)
    {
        EXPECT_NE(dynamic_cast<const aec::EBadModelObjectCast*>(&error), nullptr);
        EXPECT_STREQ(error.what(),
                     "aec::cast failed to cast from cast_test::CDoorStyle to cast_test::IWindowStyle");
    }
}

} // namespace cast_test
