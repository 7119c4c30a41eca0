#include "ExplorerDesktop/ContextMenuBuilder.h"

#include <QAction>
#include <QMenu>
#include <QVariantList>

namespace aec::desktop
{

namespace
{

// Names of entities and topics may hold '&', which a menu would take for a shortcut marker.
QString menuText(const CContextMenuItem& item)
{
    return QString::fromStdWString(item.getText()).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void fill(QMenu& menu, const std::vector<CContextMenuItem>& items, const ContextMenuShortcuts& shortcuts,
          const QVariantList& parentPath, const QVariantList& checked)
{
    for (std::size_t index = 0; index < items.size(); ++index)
    {
        const CContextMenuItem& item = items[index];
        if (item.isSeparator())
        {
            menu.addSeparator();
            continue;
        }
        QVariantList path = parentPath;
        path.append(QVariant::fromValue(static_cast<qulonglong>(index)));
        if (!item.getSubItems().empty())
        {
            QMenu* const submenu = menu.addMenu(menuText(item));
            submenu->setEnabled(item.isEnabled());
            fill(*submenu, item.getSubItems(), shortcuts, path, checked);
            continue;
        }
        QAction* const action = menu.addAction(menuText(item));
        action->setEnabled(item.isEnabled());
        action->setData(path);
        if (path == checked)
        {
            action->setCheckable(true);
            action->setChecked(true);
        }
        if (const auto shortcut = shortcuts.find(item.getIdentifier()); shortcut != shortcuts.end())
        {
            action->setShortcut(shortcut->second);
            action->setShortcutVisibleInContextMenu(true);
        }
    }
}

} // namespace

void fillContextMenu(QMenu& menu, const std::vector<CContextMenuItem>& items,
                     const ContextMenuShortcuts& shortcuts, const std::vector<std::size_t>& checked)
{
    QVariantList checkedPath;
    for (const std::size_t index : checked)
        checkedPath.append(QVariant::fromValue(static_cast<qulonglong>(index)));
    fill(menu, items, shortcuts, QVariantList(), checkedPath);
}

std::vector<std::size_t> contextMenuPath(const QAction& action)
{
    std::vector<std::size_t> path;
    for (const QVariant& index : action.data().toList())
        path.push_back(static_cast<std::size_t>(index.toULongLong()));
    return path;
}

} // namespace aec::desktop
