#pragma once

#include "aec/PasteHandler.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The handler that puts pasted entities into the project, failing where the plan says, also once it has done
// its work.
class CFaultyPasteHandler final : public IPasteHandler
{
public:
    CFaultyPasteHandler(CFaultPlan& plan, IPasteHandler& inner) : plan_(plan), inner_(inner) {}

    EntityIdList paste(IProject& project, const IProjectEntityPasteData& data) override;

private:
    CFaultPlan& plan_;
    IPasteHandler& inner_;
};

} // namespace aec::fault_injection
