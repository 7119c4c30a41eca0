#include "AecModel/CopiedEntities.h"

#include "Common/Check.h"

#include <utility>

namespace aec::model
{

CCopiedEntities::CCopiedEntities() = default;
CCopiedEntities::~CCopiedEntities() = default;
CCopiedEntities::CCopiedEntities(const CCopiedEntities&) = default;
CCopiedEntities& CCopiedEntities::operator=(const CCopiedEntities&) = default;

std::vector<CopiedEntity>& CCopiedEntities::collection(CopyCollection copyCollection)
{
    return const_cast<std::vector<CopiedEntity>&>(std::as_const(*this).collection(copyCollection));
}

const std::vector<CopiedEntity>& CCopiedEntities::collection(CopyCollection copyCollection) const
{
    const auto index = static_cast<std::size_t>(copyCollection);
    COMMON_PRECONDITION(index < collections_.size());
    return collections_[index];
}

std::size_t CCopiedEntities::entityCount() const noexcept
{
    std::size_t count = 0;
    for (const std::vector<CopiedEntity>& entities : collections_)
        count += entities.size();
    return count;
}

} // namespace aec::model
