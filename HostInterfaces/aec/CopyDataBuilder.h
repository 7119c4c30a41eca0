#pragma once

#include "aec/AecApi.h"
#include "aec/CopyCollections.h"

#include <memory>

namespace aec
{

class IProjectEntityCopyData;

// Gathers everything that copied entities carry into copy data.
class AEC_INTERFACE ICopyDataBuilder
{
public:
    virtual ~ICopyDataBuilder() = default;

    // The copy data of the collections' entities.
    virtual std::unique_ptr<IProjectEntityCopyData> build(const CopyCollections& collections) const = 0;
};

} // namespace aec
