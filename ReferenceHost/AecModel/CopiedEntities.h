#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/CopiedEntity.h"

#include "aec/CopyCollections.h"
#include "aec/ProjectEntityCopyData.h"

#include <array>
#include <cstddef>
#include <vector>

namespace aec::model
{

// The copied entities of the nine copy collections, each collection in copy order. The same value
// is the copy data that the builder makes and the paste data that the serializer reads back.
class AECMODEL_API CCopiedEntities final : public IProjectEntityCopyData, public IProjectEntityPasteData
{
public:
    CCopiedEntities();
    ~CCopiedEntities() override;
    CCopiedEntities(const CCopiedEntities&);
    CCopiedEntities& operator=(const CCopiedEntities&);

    std::vector<CopiedEntity>& collection(CopyCollection copyCollection);
    const std::vector<CopiedEntity>& collection(CopyCollection copyCollection) const;
    std::size_t entityCount() const noexcept;

    friend bool operator==(const CCopiedEntities& left, const CCopiedEntities& right)
    {
        return left.collections_ == right.collections_;
    }

private:
    std::array<std::vector<CopiedEntity>, copyCollectionCount> collections_;
};

} // namespace aec::model
