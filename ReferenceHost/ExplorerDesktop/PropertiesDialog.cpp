#include "ExplorerDesktop/PropertiesDialog.h"

#include "ExplorerDesktop/EntityPage.h"

#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace aec::desktop
{

CPropertiesDialog::CPropertiesDialog(const EntityIdSet& entities, const model::CProject& project,
                                     QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(entities.size() == 1 ? tr("Properties")
                                        : tr("Properties of %1 entities").arg(entities.size()));
    auto* const pages = new QTabWidget(this);
    for (const EntityId& entity : entities)
    {
        auto* const page = new CEntityPage(entity, pages);
        if (page->showFrom(project))
            pages->addTab(page, page->getTitle());
        else
            delete page;
    }
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(pages);
    layout->addWidget(buttons);
    resize(520, 420);
}

CPropertiesDialog::~CPropertiesDialog() = default;

} // namespace aec::desktop
