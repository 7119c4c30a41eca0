#pragma once

#include "aec/EntityCollection.h"
#include "aec/EntityTypeHandler.h"

#include <string>

namespace minimal_host
{

class CProject;

// Creates, removes and renames the entities of one collection (sheets, tables, assemblies or
// materials: the four types the explorer changes through type handlers). The explorer opens the
// transaction around each call; the handler only changes the project.
class CTypeHandler final : public aec::IEntityTypeHandler
{
public:
    // New entities are called "<baseName> 1", "<baseName> 2", ... (the first free number).
    CTypeHandler(CProject& project, aec::EntityCollection collection, std::wstring baseName);

    void create(const aec::EntityId& id) override;
    aec::EntityTypeId getEntityType() const override;
    void remove(const aec::EntityId& id) override;
    void rename(const aec::EntityId& id, const std::wstring& newName) override;

private:
    std::wstring freeName() const;

    CProject& project_;
    aec::EntityCollection collection_;
    std::wstring baseName_;
};

} // namespace minimal_host
