#pragma once

#include "HostServices/DocumentGui.h"
#include "HostServices/HostServicesApi.h"

#include "aec/ProxyAppGui.h"

#include <cstdint>
#include <map>
#include <memory>

namespace aec::host
{

// The application's user interface: one CDocumentGui for each open document, found by the
// document's key. A document without one (closed, or never shown) has no user interface.
class HOSTSERVICES_API CProxyAppGui final : public IProxyAppGui
{
public:
    CProxyAppGui();
    ~CProxyAppGui() override;
    CProxyAppGui(const CProxyAppGui&) = delete;
    CProxyAppGui& operator=(const CProxyAppGui&) = delete;

    CDocumentGui* getDocumentGui(std::uint32_t documentKey) const override;

    // The document's user interface, made when the document has none yet.
    CDocumentGui& showDocument(std::uint32_t documentKey);
    // Drops the document's user interface, if it has one.
    void closeDocument(std::uint32_t documentKey);

private:
    // Held by pointer, so that what getDocumentGui hands out stays put while documents come and go.
    std::map<std::uint32_t, std::unique_ptr<CDocumentGui>> documents_;
};

} // namespace aec::host
