#pragma once

#include "aec/TitleBlockIO.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The table importer, failing where the plan says, also once it has made the table.
class CFaultyTitleBlockIO final : public ITitleBlockIO
{
public:
    CFaultyTitleBlockIO(CFaultPlan& plan, const ITitleBlockIO& inner) : plan_(plan), inner_(inner) {}

    EntityId importTable(IProject& project, const std::filesystem::path& file) const override;

private:
    CFaultPlan& plan_;
    const ITitleBlockIO& inner_;
};

} // namespace aec::fault_injection
