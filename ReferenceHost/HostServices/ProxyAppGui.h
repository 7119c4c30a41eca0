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
// document's key. A document without one (closed, or never shown) has no user interface. The open
// callback that a host program sets here reaches every document's user interface, those shown
// later included, so that the program need not follow documents as they come and go.
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
    // Shows the entities that any document opens; an empty callback only keeps them.
    void setOpenCallback(CDocumentGui::OpenCallback callback);

private:
    // Held by pointer, so that what getDocumentGui hands out stays put while documents come and go.
    std::map<std::uint32_t, std::unique_ptr<CDocumentGui>> documents_;
    CDocumentGui::OpenCallback openCallback_;
};

} // namespace aec::host
