#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

namespace aec
{

class IProject;
class IProjectEntityPasteData;

// Puts pasted entities into the project.
class AEC_INTERFACE IPasteHandler
{
public:
    virtual ~IPasteHandler() = default;

    // Makes new entities from the data, with fresh identifiers and unique names; returns them.
    virtual EntityIdList paste(IProject& project, const IProjectEntityPasteData& data) = 0;
};

} // namespace aec
