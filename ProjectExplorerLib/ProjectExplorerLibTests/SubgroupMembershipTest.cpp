#include "ProjectExplorerLib/SubgroupMembership.h"

#include "ProjectExplorerLib/ProjectExplorerSubgroup.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace project_explorer::test
{
namespace
{

using aec::EntityIdSet;

// Identifiers in the order of their numbers: the number goes into the last two bytes, high byte first.
aec::EntityId entity(std::uint16_t number)
{
    return aec::EntityId(common::UUID::fromFields(
        0, 0, 0,
        {0, 0, 0, 0, 0, 0, static_cast<std::uint8_t>(number >> 8), static_cast<std::uint8_t>(number)}));
}

EntityIdSet range(std::uint16_t first, std::uint16_t last)
{
    EntityIdSet entities;
    for (std::uint16_t number = first; number <= last; ++number)
        entities.insert(entity(number));
    return entities;
}

// The answer must not depend on which way it is found: a few entities are looked up, more are
// first met while scanning the subgroup, and a subgroup larger than the entities is looked up in
// after a scan of its first entities found nothing.
TEST(SubgroupMembershipTest, FindsAnyHeldEntityWhicheverSideIsLarger)
{
    const CProjectExplorerSubgroup small({L"small", range(10, 14)});
    const CProjectExplorerSubgroup large({L"large", range(100, 399)});

    EXPECT_TRUE(holdsAnyOf(small, {entity(1), entity(12)}));
    EXPECT_FALSE(holdsAnyOf(small, {entity(1), entity(15)}));
    EXPECT_FALSE(holdsAnyOf(small, {}));

    EXPECT_TRUE(holdsAnyOf(small, range(14, 60)));
    EXPECT_FALSE(holdsAnyOf(small, range(15, 60)));

    // Twenty entities: the scan of the large subgroup stops after twenty of its entities, before
    // reaching the one held, which the look-ups then find.
    EntityIdSet lateInTheSubgroup = range(1000, 1018);
    lateInTheSubgroup.insert(entity(390));
    EXPECT_TRUE(holdsAnyOf(large, lateInTheSubgroup));
    EXPECT_FALSE(holdsAnyOf(large, range(1000, 1019)));
    EXPECT_TRUE(holdsAnyOf(large, range(399, 420)));
}

} // namespace
} // namespace project_explorer::test
