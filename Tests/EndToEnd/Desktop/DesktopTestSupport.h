#pragma once

#include <QModelIndex>
#include <QString>
#include <QStringList>
#include <string>

class QTemporaryDir;
class QTreeView;

// Fails the test with the text unless it is empty: for the mismatch finders below.
#define VERIFY_EMPTY(text)                                                                                   \
    do                                                                                                       \
    {                                                                                                        \
        const QString mismatch = (text);                                                                     \
        QVERIFY2(mismatch.isEmpty(), qPrintable(mismatch));                                                  \
    } while (false)

namespace aec
{
class IProjectExplorer;
class IProjectExplorerGroup;
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

IProjectExplorerGroup& groupAt(IProjectExplorer& explorer, int row);
// The row of the entity of that name, or an invalid index.
QModelIndex findEntityRow(const CExplorerItemModel& model, const std::wstring& name);
// The row of the entity of that name, which the test relies on: the test ends when there is none.
QModelIndex entityRow(const CExplorerItemModel& model, const std::wstring& name);
// Writes the file of that name into the directory and returns its path; the test ends when it
// cannot.
QString writeTestFile(const QTemporaryDir& directory, const QString& name, const QByteArray& content);
// The names of a group's subgroups as the model shows them, in order.
QStringList subgroupNames(const CExplorerItemModel& model, int groupRow);

} // namespace aec::desktop
