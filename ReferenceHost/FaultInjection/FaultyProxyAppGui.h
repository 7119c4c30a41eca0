#pragma once

#include "FaultInjection/FaultyDocumentGui.h"
#include "aec/ProxyAppGui.h"

#include <map>
#include <memory>

namespace aec::fault_injection
{

class CFaultPlan;

// The application's user interface, failing where the plan says; the documents' user interfaces
// it hands out fail alike.
class CFaultyProxyAppGui final : public IProxyAppGui
{
public:
    CFaultyProxyAppGui(CFaultPlan& plan, IProxyAppGui& inner) : plan_(plan), inner_(inner) {}

    IDocumentGui* getDocumentGui(std::uint32_t documentKey) const override;

    // Drops the decorations handed out so far; for when their documents have been closed.
    void forgetDocuments() noexcept;

private:
    CFaultPlan& plan_;
    IProxyAppGui& inner_;
    // One decoration per document user interface, made when it is first asked for: the library
    // may keep the pointer for the length of an operation.
    mutable std::map<const IDocumentGui*, std::unique_ptr<CFaultyDocumentGui>> documentGuis_;
};

} // namespace aec::fault_injection
