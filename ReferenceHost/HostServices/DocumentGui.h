#pragma once

#include "HostServices/HostServicesApi.h"

#include "aec/DocumentGui.h"

#include <functional>
#include <vector>

namespace aec::host
{

// The user interface of one open document. It keeps every entity handed to it and every list of
// entities opened, and passes them on to the callbacks that the host program plugs in (the desktop
// host starts renaming in its panel, the terminal host prints what was opened). A new document
// follows project changes.
class HOSTSERVICES_API CDocumentGui final : public IDocumentGui
{
public:
    using EntityCallback = std::function<void(const EntityId& entity)>;
    using OpenCallback = std::function<void(const EntityIdList& entities)>;

    CDocumentGui();
    ~CDocumentGui() override;
    CDocumentGui(const CDocumentGui&) = delete;
    CDocumentGui& operator=(const CDocumentGui&) = delete;

    void handleEntity(const EntityId& entity) override;
    void openEntities(const EntityIdList& entities) override;
    bool isFollowingChanges() const override;
    void setFollowingChanges(bool following) override;

    void setEntityCallback(EntityCallback callback) { entityCallback_ = std::move(callback); }
    void setOpenCallback(OpenCallback callback) { openCallback_ = std::move(callback); }
    const EntityIdList& getHandledEntities() const noexcept { return handled_; }
    const std::vector<EntityIdList>& getOpenedEntities() const noexcept { return opened_; }

private:
    EntityCallback entityCallback_;
    OpenCallback openCallback_;
    EntityIdList handled_;
    std::vector<EntityIdList> opened_;
    bool following_ = true;
};

} // namespace aec::host
