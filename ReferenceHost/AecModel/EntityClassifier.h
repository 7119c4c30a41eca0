#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/EntityClassifier.h"

namespace aec::model
{

class CProject;

// Sorts a project's entities into copy collections by the collection they live in: sheets and
// tables are documents; materials and door, window and reinforcement styles are styles; assemblies,
// topics and images are resources. Linked models, and identifiers the project does not know, are
// none of these, so they are never copied.
class AECMODEL_API CEntityClassifier final : public IEntityClassifier
{
public:
    explicit CEntityClassifier(const CProject& project);
    ~CEntityClassifier() override;

    std::optional<CopyCollection> classifyAsDocument(const EntityId& entity) const override;
    std::optional<CopyCollection> classifyAsStyle(const EntityId& entity) const override;
    std::optional<CopyCollection> classifyAsResource(const EntityId& entity) const override;

private:
    const CProject& project_;
};

} // namespace aec::model
