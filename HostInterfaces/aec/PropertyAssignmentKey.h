#pragma once

#include "Common/UUID.h"

#include <vector>

namespace aec
{

// Names the property by which a group is split into subgroups: the path of identifiers that
// leads to the property, then the property's own identifier. A plain value.
class PropertyAssignmentKey
{
public:
    PropertyAssignmentKey() = default;
    explicit PropertyAssignmentKey(const common::UUID& property) : property_(property) {}
    PropertyAssignmentKey(std::vector<common::UUID> path, const common::UUID& property)
        : path_(std::move(path)), property_(property)
    {
    }

    const std::vector<common::UUID>& getPath() const noexcept { return path_; }
    const common::UUID& getProperty() const noexcept { return property_; }

    friend bool operator==(const PropertyAssignmentKey&, const PropertyAssignmentKey&) = default;

    // The reserved key that means "no grouping"; always available to every group.
    static const PropertyAssignmentKey& noGrouping()
    {
        static const PropertyAssignmentKey key(
            common::UUID::parse(std::string_view("00f4ab78-9ef2-4d14-8bf5-2e1b0441ba68")));
        return key;
    }

    // The one grouping property the host offers to its groupable groups: the entity's topic.
    static const PropertyAssignmentKey& topic()
    {
        static const PropertyAssignmentKey key(
            common::UUID::parse(std::string_view("f8b4e25e-ab43-48ad-b921-fcc9655d2652")));
        return key;
    }

private:
    std::vector<common::UUID> path_;
    common::UUID property_;
};

} // namespace aec
