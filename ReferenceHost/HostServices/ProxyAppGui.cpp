#include "HostServices/ProxyAppGui.h"

namespace aec::host
{

CProxyAppGui::CProxyAppGui() = default;

CProxyAppGui::~CProxyAppGui() = default;

CDocumentGui* CProxyAppGui::getDocumentGui(std::uint32_t documentKey) const
{
    const auto found = documents_.find(documentKey);
    return found == documents_.end() ? nullptr : found->second.get();
}

CDocumentGui& CProxyAppGui::showDocument(std::uint32_t documentKey)
{
    std::unique_ptr<CDocumentGui>& gui = documents_[documentKey];
    if (!gui)
    {
        gui = std::make_unique<CDocumentGui>();
        gui->setOpenCallback(openCallback_);
    }
    return *gui;
}

void CProxyAppGui::closeDocument(std::uint32_t documentKey)
{
    documents_.erase(documentKey);
}

void CProxyAppGui::setOpenCallback(CDocumentGui::OpenCallback callback)
{
    openCallback_ = std::move(callback);
    for (const auto& [key, gui] : documents_)
        gui->setOpenCallback(openCallback_);
}

} // namespace aec::host
