#pragma once

#include "ConsolePanel.h"

#include "aec/Document.h"
#include "aec/DocumentGui.h"
#include "aec/HostContext.h"

namespace minimal_host
{

// The one document window of this host: it shows the open project (the document) and owns the
// explorer panel, which it hands to the library's view creator. It is also the document's user
// interface, which the explorer asks to open entities, to rename one in place and to stop
// following changes while it pastes.
class CDocumentWindow final : public aec::IPanelOwner,
                              public aec::IProjectExplorerGuiProvider,
                              public aec::IDocument,
                              public aec::IDocumentGui
{
public:
    explicit CDocumentWindow(const aec::IProjectSessionManager& sessionManager);

    CConsolePanel& getExplorerPanel() noexcept { return *panel_; }

    // aec::IProjectExplorerGuiProvider: the window's one panel, for every view made in it.
    aec::IProjectExplorerPanel* getPanel(aec::IPanelOwner& owner, aec::IHostContext& context) const override;

    // The document's key among the application's open documents.
    static constexpr std::uint32_t key = 1;

    // aec::IDocument: without a property context the explorer offers no property editing.
    std::uint32_t getKey() const override;
    aec::IPropertyContext* getPropertyContext() const override;

    // aec::IDocumentGui
    void handleEntity(const aec::EntityId& entity) override;
    void openEntities(const aec::EntityIdList& entities) override;
    bool isFollowingChanges() const override;
    void setFollowingChanges(bool following) override;

private:
    // Behind a pointer, so that the const provider operation can hand it out for changing.
    std::unique_ptr<CConsolePanel> panel_;
    bool followingChanges_ = true;
};

} // namespace minimal_host
