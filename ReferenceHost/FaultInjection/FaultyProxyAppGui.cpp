#include "FaultInjection/FaultyProxyAppGui.h"

#include "FaultInjection/FaultPlan.h"

namespace aec::fault_injection
{

IDocumentGui* CFaultyProxyAppGui::getDocumentGui(std::uint32_t documentKey) const
{
    plan_.reach("IProxyAppGui::getDocumentGui");
    IDocumentGui* const gui = inner_.getDocumentGui(documentKey);
    if (gui == nullptr)
        return nullptr;
    std::unique_ptr<CFaultyDocumentGui>& decorated = documentGuis_[gui];
    if (decorated == nullptr)
        decorated = std::make_unique<CFaultyDocumentGui>(plan_, *gui);
    return decorated.get();
}

void CFaultyProxyAppGui::forgetDocuments() noexcept
{
    documentGuis_.clear();
}

} // namespace aec::fault_injection
