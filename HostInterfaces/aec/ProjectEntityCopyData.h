#pragma once

#include "aec/AecApi.h"

namespace aec
{

// Copied entities in the host's own form, between the copy-data builder and the serializer.
class AEC_INTERFACE IProjectEntityCopyData
{
public:
    virtual ~IProjectEntityCopyData() = default;
};

// Decoded clipboard data, between the serializer and the paste handler.
class AEC_INTERFACE IProjectEntityPasteData
{
public:
    virtual ~IProjectEntityPasteData() = default;
};

} // namespace aec
