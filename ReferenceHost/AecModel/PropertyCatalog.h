#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/PropertyCatalog.h"

#include <string_view>

namespace aec::model
{

// The grouping properties of the reference host: the entity's topic, available while the project
// has at least one topic (grouping by topic in a project without topics would only ever show one
// subgroup of entities without a topic), and the reserved no-grouping key, always available.
class AECMODEL_API CPropertyCatalog final : public IPropertyCatalog
{
public:
    static constexpr std::wstring_view topicDisplayName = L"Topic";
    static constexpr std::wstring_view noGroupingDisplayName = L"(No grouping)";

    CPropertyCatalog() = default;
    ~CPropertyCatalog() override;

    bool isAvailable(const IProject& project, const PropertyAssignmentKey& key) const override;
    // Keys the catalog does not know read as the text of their property identifier.
    std::wstring getDisplayName(const PropertyAssignmentKey& key) const override;
};

} // namespace aec::model
