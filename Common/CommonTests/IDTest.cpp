#include "Common/ID.h"

#include <gtest/gtest.h>

#include <set>
#include <type_traits>

namespace
{

using EntityId = common::ID<common::tagGlobalEntityId>;
struct tagOtherId;

// Identifiers of different kinds, and bare UUIDs, must not slip into one another.
static_assert(!std::is_convertible_v<common::ID<tagOtherId>, EntityId>);
static_assert(!std::is_convertible_v<common::UUID, EntityId>);

TEST(IDTest, IdentifiersOrderAndHashAsTheirUuids)
{
    const common::UUID low(common::UUID::Bytes{0x01, 0, 0, 0x02});
    const common::UUID high(common::UUID::Bytes{0x02, 0, 0, 0x01});
    const std::set<EntityId> ordered{EntityId(high), EntityId(low), EntityId(high)};
    EXPECT_EQ(ordered.size(), 2u);
    EXPECT_EQ(ordered.begin()->uuid(), low);
    EXPECT_EQ(std::hash<EntityId>{}(EntityId(high)), std::hash<common::UUID>{}(high));
    EXPECT_TRUE(EntityId().isNull());
}

} // namespace
