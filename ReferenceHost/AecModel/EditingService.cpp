#include "AecModel/EditingService.h"

#include "AecModel/EditCommand.h"
#include "AecModel/EntityNameRule.h"
#include "AecModel/Project.h"

#include "Common/Check.h"

#include <string>

namespace aec::model
{

CEditingService::CEditingService(CProject& project) : project_(project) {}

CEditingService::~CEditingService() = default;

void CEditingService::beginEdit()
{
    COMMON_PRECONDITION(!isEditing());
    edit_ = project_.getTransactionHost().openTransaction(std::string(stepName));
}

std::unique_ptr<IEditCommand> CEditingService::createCommand(const EntityId& entity)
{
    COMMON_PRECONDITION(isEditing());
    COMMON_PRECONDITION(project_.findEntity(entity) != nullptr);
    return std::make_unique<CEditCommand>(entity);
}

void CEditingService::submit(IEditCommand& command)
{
    COMMON_PRECONDITION(isEditing());
    const auto* const edit = dynamic_cast<const CEditCommand*>(&command);
    COMMON_PRECONDITION(edit != nullptr);
    if (edit->getName())
    {
        project_.renameEntity(
            edit->getEntity(),
            acceptableName(project_, *project_.findEntity(edit->getEntity()), *edit->getName()));
    }
}

void CEditingService::endEdit(bool success)
{
    COMMON_PRECONDITION(isEditing());
    // Taken out first, so that the service is free again whatever the commit or rollback does.
    std::unique_ptr<ITransaction> edit = std::move(edit_);
    if (success)
        edit->commit();
}

} // namespace aec::model
