#pragma once

#include <memory>

class QStandardItemModel;

namespace aec
{
class IAttributeValueFormatter;
class IProject;
} // namespace aec

namespace benchmarks
{

// The explorer's tree of the seven groupable groups grouped by topic, made as a Qt developer would
// make it by hand: a QStandardItemModel of group items, topic items under them in natural order
// (QCollator in numeric mode, case ignored) and entity items under those, each entity item naming
// its entity and holding its identifier. Topics come from the same host formatter as the
// explorer's subgroups; entities keep the project's order, which spares the peer the explorer's
// ordering of entities by identifier.
std::unique_ptr<QStandardItemModel> buildQtExplorerTree(const aec::IProject& project,
                                                        const aec::IAttributeValueFormatter& formatter);

} // namespace benchmarks
