#include "FaultInjection/FaultyEditCommand.h"

#include "Common/Check.h"
#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

CFaultyEditCommand::CFaultyEditCommand(CFaultPlan& plan, std::unique_ptr<IEditCommand> inner)
    : plan_(plan), inner_(std::move(inner))
{
    COMMON_PRECONDITION(inner_ != nullptr);
}

CFaultyEditCommand::~CFaultyEditCommand() = default;

IEditCommand& CFaultyEditCommand::innerOf(IEditCommand& command)
{
    auto* const decorated = dynamic_cast<CFaultyEditCommand*>(&command);
    return decorated != nullptr ? *decorated->inner_ : command;
}

void CFaultyEditCommand::setName(const std::wstring& name)
{
    plan_.reach("IEditCommand::setName");
    inner_->setName(name);
}

} // namespace aec::fault_injection
