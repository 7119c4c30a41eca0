#pragma once

#include "aec/EntityCollection.h"
#include "aec/SubgroupDescriptor.h"

#include <vector>

namespace aec
{
class IAttributeValueFormatter;
class IProject;
class PropertyAssignmentKey;
} // namespace aec

namespace aec::host
{

// The subgroups that a group of the collection's entities shows under the grouping key and sort
// order, worked out from the project alone: none for an empty collection, one unnamed subgroup
// without grouping, and otherwise one subgroup per formatted value in natural order (ascending for
// sort order 1, else descending). Values that the natural order finds equal share one subgroup,
// named as the first of them in collection order.
std::vector<SubgroupDescriptor> expectedSubgroups(const IProject& project,
                                                  const IAttributeValueFormatter& formatter,
                                                  EntityCollection collection,
                                                  const PropertyAssignmentKey& key, int sortOrder);

} // namespace aec::host
