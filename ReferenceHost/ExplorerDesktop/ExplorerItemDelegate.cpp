#include "ExplorerDesktop/ExplorerItemDelegate.h"

#include "AecModel/Entity.h"
#include "AecModel/Project.h"
#include "Common/UUID.h"
#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerShell/EntityTypeNames.h"
#include "HostFrame/ExplorerSession.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QStyle>
#include <QToolTip>
#include <map>

namespace aec::desktop
{

namespace
{

struct KindIcon
{
    const char* themeName;
    QStyle::StandardPixmap fallback;
};

// Names from the freedesktop icon naming rules, which Qt's icon themes follow; the
// style's own pixmaps stand in where the platform has no theme (Windows, the offscreen platform).
const std::map<EntityCollection, KindIcon>& kindIcons()
{
    static const std::map<EntityCollection, KindIcon> icons{
        {EntityCollection::Sheets, {"x-office-document", QStyle::SP_FileIcon}},
        {EntityCollection::Tables, {"x-office-spreadsheet", QStyle::SP_FileDialogDetailedView}},
        {EntityCollection::Assemblies, {"package-x-generic", QStyle::SP_DriveHDIcon}},
        {EntityCollection::Materials, {"applications-graphics", QStyle::SP_FileDialogContentsView}},
        {EntityCollection::DoorStyles, {"go-jump", QStyle::SP_ArrowRight}},
        {EntityCollection::WindowStyles, {"window-new", QStyle::SP_TitleBarNormalButton}},
        {EntityCollection::ReinforcementStyles, {"preferences-system", QStyle::SP_BrowserReload}},
        {EntityCollection::Topics, {"bookmark-new", QStyle::SP_DirLinkIcon}},
        {EntityCollection::LinkedModels, {"emblem-symbolic-link", QStyle::SP_FileLinkIcon}},
        {EntityCollection::Images, {"image-x-generic", QStyle::SP_DesktopIcon}},
    };
    return icons;
}

const model::CEntity* entityAt(host::CExplorerSession& session, const QModelIndex& index)
{
    const auto kind = static_cast<CExplorerTreeNode::Kind>(index.data(CExplorerItemModel::KindRole).toInt());
    if (kind != CExplorerTreeNode::Kind::Entity || !session.hasProject())
        return nullptr;
    const std::optional<common::UUID> uuid =
        common::UUID::tryParse(index.data(CExplorerItemModel::EntityIdRole).toString().toStdString());
    return uuid ? session.getProject().findEntity(EntityId(*uuid)) : nullptr;
}

} // namespace

CExplorerItemDelegate::CExplorerItemDelegate(host::CExplorerSession& session, QObject* parent)
    : QStyledItemDelegate(parent), session_(session)
{
}

CExplorerItemDelegate::~CExplorerItemDelegate() = default;

QIcon CExplorerItemDelegate::entityIcon(const QModelIndex& index) const
{
    const model::CEntity* const entity = entityAt(session_, index);
    if (entity == nullptr)
        return {};
    const auto found = kindIcons().find(entity->getCollection());
    if (found == kindIcons().end())
        return {};
    auto [icon, made] = icons_.try_emplace(entity->getCollection());
    if (made)
        icon->second = QIcon::fromTheme(QString::fromLatin1(found->second.themeName),
                                        QApplication::style()->standardIcon(found->second.fallback));
    return icon->second;
}

QString CExplorerItemDelegate::entityToolTip(const QModelIndex& index) const
{
    const model::CEntity* const entity = entityAt(session_, index);
    if (entity == nullptr)
        return {};
    QString topic = tr("none");
    if (const std::optional<TopicId> topicId = entity->getTopic())
        if (const model::CEntity* const topicEntity =
                session_.getProject().findEntity(EntityId(topicId->uuid())))
            topic = QString::fromStdWString(topicEntity->getName());
    return tr("%1\nKind: %2\nTopic: %3")
        .arg(QString::fromStdWString(entity->getName()),
             QString::fromStdString(shell::entityTypeName(entity->getType())), topic);
}

bool CExplorerItemDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                      const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() == QEvent::ToolTip)
        if (const QString text = entityToolTip(index); !text.isEmpty())
        {
            QToolTip::showText(event->globalPos(), text, view);
            return true;
        }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

void CExplorerItemDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (const QIcon icon = entityIcon(index); !icon.isNull())
        option->icon = icon;
}

} // namespace aec::desktop
