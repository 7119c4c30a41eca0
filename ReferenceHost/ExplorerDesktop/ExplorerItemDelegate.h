#pragma once

#include "aec/EntityCollection.h"

#include <QIcon>
#include <QStyledItemDelegate>
#include <map>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::desktop
{

// Draws the explorer's rows with an icon for each kind of entity, and explains an entity in its
// tooltip: the full name (a narrow panel cuts it), its kind and its topic. Both are read from the
// project when a row is drawn or hovered, so they cost nothing for the rows nobody sees.
class CExplorerItemDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // The session must outlive the delegate.
    explicit CExplorerItemDelegate(host::CExplorerSession& session, QObject* parent = nullptr);
    ~CExplorerItemDelegate() override;

    // For an index of the explorer's item model or of a filter over it; null icon and empty text
    // for rows that are not entities of the project.
    QIcon entityIcon(const QModelIndex& index) const;
    QString entityToolTip(const QModelIndex& index) const;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    host::CExplorerSession& session_;
    // Looking an icon up in the theme costs more than drawing the row, and every row is drawn anew
    // at each scroll; one icon per kind is made once.
    mutable std::map<EntityCollection, QIcon> icons_;
};

} // namespace aec::desktop
