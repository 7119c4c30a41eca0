#pragma once

#include "aec/EditingService.h"
#include "aec/Transaction.h"

#include <memory>
#include <string_view>

namespace aec::model
{

class CProject;

// The project's direct edits. An edit is a transaction of its own, named "Rename" since renaming
// is the one edit that commands carry: ending it with success leaves one undo step (or joins the
// transaction open around it), ending it without success takes its changes back. Edits do not nest.
class CEditingService final : public IEditingService
{
public:
    static constexpr std::string_view stepName = "Rename";

    explicit CEditingService(CProject& project);
    ~CEditingService() override;

    void beginEdit() override;
    // The entity must exist; an edit must be open.
    std::unique_ptr<IEditCommand> createCommand(const EntityId& entity) override;
    // The command must come from this service; an edit must be open. A name is held to the rule of
    // every rename (see acceptableName): one it breaks throws common::EException.
    void submit(IEditCommand& command) override;
    void endEdit(bool success) override;

    bool isEditing() const noexcept { return edit_ != nullptr; }

private:
    CProject& project_;
    std::unique_ptr<ITransaction> edit_;
};

} // namespace aec::model
