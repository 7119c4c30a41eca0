#include "FaultInjection/FaultyClipboard.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

void CFaultyClipboard::setData(std::uint32_t format, const std::wstring& data)
{
    plan_.reach("IClipboard::setData");
    inner_.setData(format, data);
}

std::optional<std::wstring> CFaultyClipboard::getData(std::uint32_t format) const
{
    plan_.reach("IClipboard::getData");
    return inner_.getData(format);
}

bool CFaultyClipboard::hasData(std::uint32_t format) const
{
    plan_.reach("IClipboard::hasData");
    return inner_.hasData(format);
}

} // namespace aec::fault_injection
