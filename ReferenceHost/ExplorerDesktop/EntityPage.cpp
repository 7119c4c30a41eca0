#include "ExplorerDesktop/EntityPage.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/Project.h"
#include "AecModel/TableImporter.h"
#include "ExplorerDesktop/TableCellsModel.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace aec::desktop
{

namespace
{

QTableWidget* makeTable(QWidget* parent)
{
    auto* const table = new QTableWidget(parent);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

QString kindOf(const model::CEntity& entity)
{
    const auto& groups = projectExplorerGroups();
    const auto group =
        std::ranges::find(groups, entity.getCollection(), &ProjectExplorerGroupInfo::collection);
    return group == groups.end() ? QString() : QString::fromStdWString(group->name);
}

QString topicOf(const model::CEntity& entity, const model::CProject& project)
{
    const std::optional<TopicId> topic = entity.getTopic();
    if (topic)
        for (const CTopic& known : project.getProjectTopics())
            if (known.getId() == *topic)
                return QString::fromStdWString(known.getName());
    return QString::fromStdWString(std::wstring(model::CAttributeValueFormatter::absentText));
}

} // namespace

CEntityPage::CEntityPage(const EntityId& entity, QWidget* parent)
    : QWidget(parent), entity_(entity), name_(new QLabel(this)), kind_(new QLabel(this)),
      topic_(new QLabel(this)), identifier_(new QLabel(this)), properties_(makeTable(this)),
      cells_(new CTableCellsModel(this)), cellsView_(new QTableView(this))
{
    cellsView_->setModel(cells_);
    cellsView_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Rows of one height let the view place any row without asking the rows above it.
    cellsView_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    cellsView_->horizontalHeader()->setStretchLastSection(true);
    identifier_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    properties_->setColumnCount(2);
    properties_->setHorizontalHeaderLabels({tr("Property"), tr("Value")});
    properties_->verticalHeader()->hide();

    auto* const facts = new QFormLayout();
    facts->addRow(tr("Name:"), name_);
    facts->addRow(tr("Kind:"), kind_);
    facts->addRow(tr("Topic:"), topic_);
    facts->addRow(tr("Identifier:"), identifier_);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(facts);
    layout->addWidget(properties_, 1);
    layout->addWidget(cellsView_, 3);
}

CEntityPage::~CEntityPage() = default;

bool CEntityPage::showFrom(const model::CProject& project)
{
    const model::CEntity* const entity = project.findEntity(entity_);
    if (entity == nullptr)
        return false;
    title_ = QString::fromStdWString(entity->getName());
    name_->setText(title_);
    kind_->setText(kindOf(*entity));
    topic_->setText(topicOf(*entity, project));
    identifier_->setText(QString::fromStdString(entity_.uuid().toString()));

    // The cells are shown as a grid below; as a property they would be one long line of JSON.
    const std::string cellsProperty(model::CTableImporter::cellsProperty);
    const std::string columnNamesProperty(model::CTableImporter::columnNamesProperty);
    properties_->setRowCount(0);
    for (const auto& [name, value] : entity->getProperties())
    {
        if (name == cellsProperty || name == columnNamesProperty)
            continue;
        const int row = properties_->rowCount();
        properties_->insertRow(row);
        properties_->setItem(row, 0, new QTableWidgetItem(QString::fromStdString(name)));
        properties_->setItem(row, 1, new QTableWidgetItem(QString::fromStdString(value.toUtf8())));
    }
    cellsView_->setVisible(cells_->showCells(entity->findProperty(cellsProperty)));
    cells_->showColumnNames(entity->getProperty(columnNamesProperty));
    return true;
}

} // namespace aec::desktop
