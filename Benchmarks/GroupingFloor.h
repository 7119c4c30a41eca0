#pragma once

#include <cstddef>

namespace aec
{
class IAttributeValueFormatter;
class IProject;
} // namespace aec

namespace benchmarks
{

// The least work that any rebuild of the seven groupable groups grouped by topic must do: list
// each group's entities, and for each entity call the host's attribute value formatter on its
// topic and put its identifier into a hash map keyed by the formatted name. No ordering, no sets,
// no subgroups. Returns how many names the groups have, so that the work cannot be dropped.
std::size_t groupByFormattedName(const aec::IProject& project,
                                 const aec::IAttributeValueFormatter& formatter);

} // namespace benchmarks
