#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/EntitySource.h"

namespace aec::model
{

class CProject;

// A copy carries exactly the requested entities that the project still has: an entity removed
// since the request (by an undo, say) is left out rather than failing the copy. Topics of copied
// entities travel inside their copy data, not as entities of their own.
class AECMODEL_API CEntitySource final : public IEntitySource
{
public:
    explicit CEntitySource(const CProject& project);
    ~CEntitySource() override;

    EntityIdSet getEntities(const EntityIdList& requested) const override;

private:
    const CProject& project_;
};

} // namespace aec::model
