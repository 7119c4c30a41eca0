#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/PasteHandler.h"

namespace aec::model
{

// Puts CCopiedEntities into a CProject as new entities with fresh identifiers (from
// common::UUID::generate(), so that an installed provider makes pastes reproducible), names made
// unique within their collection ("Plan" becomes "Plan (2)"), and the copied properties.
//
// A copied topic is kept when the project has a topic of that identifier (a paste into the same
// project); otherwise it goes to the copy of that topic pasted along with it, else to the project's
// first topic of the same name, else it is dropped. Topics are therefore pasted before the other
// collections.
class AECMODEL_API CPasteHandler final : public IPasteHandler
{
public:
    CPasteHandler() = default;
    ~CPasteHandler() override;

    // The project must be a CProject and the data CCopiedEntities. Returns the new entities in the
    // order of the data: collection by collection, each in copy order.
    EntityIdList paste(IProject& project, const IProjectEntityPasteData& data) override;
};

} // namespace aec::model
