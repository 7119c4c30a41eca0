#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/EntityCollection.h"
#include "aec/EntityTypeHandler.h"

namespace aec::model
{

class CProject;

// Creates, removes and renames the entities of one collection of a project.
//
// Names within the collection stay unique under the handler's operations: a new entity gets the
// first free "<Type> <n>" ("Sheet 1", "Sheet 2", ...), and renaming to a name that another entity of
// the collection already has is refused, since two entries of one name in a group could not be
// told apart. Names compare exactly, so changing only the case of a name is a rename like any other.
// Changes go through the project, inside whatever transaction the caller has open.
class AECMODEL_API CEntityTypeHandler final : public IEntityTypeHandler
{
public:
    CEntityTypeHandler(CProject& project, EntityCollection collection);
    ~CEntityTypeHandler() override;

    // The identifier must not be null and must be new to the project.
    void create(const EntityId& id) override;
    EntityTypeId getEntityType() const override;
    // The entity must be one of the collection's.
    void remove(const EntityId& id) override;
    // The entity must be one of the collection's. Throws common::EException, changing nothing, when
    // the name is blank or another entity of the collection has it.
    void rename(const EntityId& id, const std::wstring& newName) override;

    EntityCollection getCollection() const noexcept { return collection_; }

private:
    void requireMember(const EntityId& id) const;

    CProject& project_;
    EntityCollection collection_;
};

} // namespace aec::model
