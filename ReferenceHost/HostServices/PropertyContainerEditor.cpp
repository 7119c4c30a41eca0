#include "HostServices/PropertyContainerEditor.h"

namespace aec::host
{

CPropertyContainerEditor::CPropertyContainerEditor() = default;

CPropertyContainerEditor::~CPropertyContainerEditor() = default;

void CPropertyContainerEditor::edit(IPropertyContextOwner& owner, const EntityIdSet& entities)
{
    lastRequest_ = Request{&owner, entities};
    ++requestCount_;
    if (callback_)
        callback_(owner, entities);
}

} // namespace aec::host
