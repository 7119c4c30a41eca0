#pragma once

#include "aec/EditCommand.h"
#include "aec/EntityId.h"

#include <optional>
#include <string>

namespace aec::model
{

// A direct edit of one entity, collected until the editing service applies it.
class CEditCommand final : public IEditCommand
{
public:
    explicit CEditCommand(const EntityId& entity);
    ~CEditCommand() override;

    void setName(const std::wstring& name) override;

    const EntityId& getEntity() const noexcept { return entity_; }
    // The new name, or nothing when the command leaves the name alone.
    const std::optional<std::wstring>& getName() const noexcept { return name_; }

private:
    EntityId entity_;
    std::optional<std::wstring> name_;
};

} // namespace aec::model
