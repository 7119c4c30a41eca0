#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/CopyDataBuilder.h"

namespace aec::model
{

class CProject;

// Makes CCopiedEntities of a project's entities: for each its type, name, topic (identifier and
// name) and free-form properties, a table's content among them. Each collection's copies follow the
// project's order of that collection.
class AECMODEL_API CCopyDataBuilder final : public ICopyDataBuilder
{
public:
    explicit CCopyDataBuilder(const CProject& project);
    ~CCopyDataBuilder() override;

    // Every entity must exist and lie in the collection that it is listed under, once.
    std::unique_ptr<IProjectEntityCopyData> build(const CopyCollections& collections) const override;

private:
    const CProject& project_;
};

} // namespace aec::model
