#include "ExplorerDesktop/DocumentArea.h"

#include "ExplorerDesktop/EntityPage.h"

#include <QPainter>

namespace aec::desktop
{

namespace
{

// A tab's text takes '&' for a shortcut marker; entity names may hold one.
QString escapedTitle(const CEntityPage& page)
{
    return QString(page.getTitle()).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

CDocumentArea::CDocumentArea(QWidget* parent) : QTabWidget(parent)
{
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    connect(this, &QTabWidget::tabCloseRequested, this, &CDocumentArea::closeTab);
}

CDocumentArea::~CDocumentArea() = default;

void CDocumentArea::openEntities(const EntityIdList& entities, const model::CProject& project)
{
    for (const EntityId& entity : entities)
    {
        CEntityPage* page = findPage(entity);
        if (page == nullptr)
        {
            page = new CEntityPage(entity, this);
            if (!page->showFrom(project))
            {
                delete page;
                continue;
            }
            addTab(page, escapedTitle(*page));
        }
        setCurrentWidget(page);
    }
}

void CDocumentArea::refresh(const model::CProject* project)
{
    for (int tab = count() - 1; tab >= 0; --tab)
    {
        CEntityPage* const page = pageAt(tab);
        if (project != nullptr && page->showFrom(*project))
            setTabText(tab, escapedTitle(*page));
        else
            closeTab(tab);
    }
}

CEntityPage* CDocumentArea::findPage(const EntityId& entity) const
{
    for (int tab = 0; tab < count(); ++tab)
        if (pageAt(tab)->getEntity() == entity)
            return pageAt(tab);
    return nullptr;
}

void CDocumentArea::paintEvent(QPaintEvent* event)
{
    QTabWidget::paintEvent(event);
    if (count() > 0)
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(
        rect(), Qt::AlignCenter | Qt::TextWordWrap,
        tr("Double-click a sheet or a table in the explorer, or choose Open in its context menu, to "
           "open it here."));
}

CEntityPage* CDocumentArea::pageAt(int tab) const
{
    return qobject_cast<CEntityPage*>(widget(tab));
}

void CDocumentArea::closeTab(int tab)
{
    QWidget* const page = widget(tab);
    removeTab(tab);
    delete page;
}

} // namespace aec::desktop
