#pragma once

#include <QString>

class QTreeView;

namespace aec
{
class IProjectExplorer;
} // namespace aec

namespace aec::desktop
{

class CExplorerItemModel;

// What the model shows differently from the explorer (names, fold states, counts, and which
// entities each subgroup holds), read straight from the explorer: the first difference, or an
// empty text when the model mirrors the explorer.
QString explorerMismatch(const CExplorerItemModel& model, const IProjectExplorer& explorer);

// The first group or subgroup that the view shows folded differently from the model, or an empty
// text.
QString foldMismatch(const QTreeView& view, const CExplorerItemModel& model);

} // namespace aec::desktop
