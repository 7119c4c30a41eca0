#include "AecModel/EditCommand.h"

namespace aec::model
{

CEditCommand::CEditCommand(const EntityId& entity) : entity_(entity) {}

CEditCommand::~CEditCommand() = default;

void CEditCommand::setName(const std::wstring& name)
{
    name_ = name;
}

} // namespace aec::model
