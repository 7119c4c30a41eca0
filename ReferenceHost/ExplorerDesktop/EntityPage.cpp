#include "ExplorerDesktop/EntityPage.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/Project.h"
#include "AecModel/TableImporter.h"
#include "AecModel/WideText.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <nlohmann/json.hpp>

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
        for (const CTopic& known : project.getTopics())
            if (known.getId() == *topic)
                return QString::fromStdWString(known.getName());
    return QString::fromStdWString(std::wstring(model::CAttributeValueFormatter::absentText));
}

} // namespace

CEntityPage::CEntityPage(const EntityId& entity, QWidget* parent)
    : QWidget(parent), entity_(entity), name_(new QLabel(this)), kind_(new QLabel(this)),
      topic_(new QLabel(this)), identifier_(new QLabel(this)), properties_(makeTable(this)),
      cells_(makeTable(this))
{
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
    layout->addWidget(cells_, 3);
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
        properties_->setItem(row, 1, new QTableWidgetItem(QString::fromStdWString(value)));
    }
    showCells(entity->getProperty(cellsProperty));
    showColumnNames(entity->getProperty(columnNamesProperty));
    return true;
}

void CEntityPage::showCells(const std::optional<std::wstring>& cellsJson)
{
    cells_->clear();
    cells_->setRowCount(0);
    cells_->setColumnCount(0);
    const nlohmann::json rows =
        cellsJson ? nlohmann::json::parse(model::toUtf8(*cellsJson), nullptr, false) : nlohmann::json();
    // Cells that do not read as a list of rows (edited by hand) are left out, not guessed at.
    const bool isGrid = rows.is_array() && !rows.empty() &&
                        std::ranges::all_of(rows, [](const nlohmann::json& row) { return row.is_array(); });
    cells_->setVisible(isGrid);
    if (!isGrid)
        return;
    std::size_t columns = 0;
    for (const nlohmann::json& row : rows)
        columns = std::max(columns, row.size());
    cells_->setRowCount(static_cast<int>(rows.size()));
    cells_->setColumnCount(static_cast<int>(columns));
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t column = 0; column < rows[row].size(); ++column)
        {
            const nlohmann::json& cell = rows[row][column];
            const QString text = cell.is_string() ? QString::fromStdString(cell.get<std::string>())
                                                  : QString::fromStdString(cell.dump());
            cells_->setItem(static_cast<int>(row), static_cast<int>(column), new QTableWidgetItem(text));
        }
}

void CEntityPage::showColumnNames(const std::optional<std::wstring>& columnNamesJson)
{
    const nlohmann::json names = columnNamesJson
                                     ? nlohmann::json::parse(model::toUtf8(*columnNamesJson), nullptr, false)
                                     : nlohmann::json();
    if (cells_->isHidden() || !names.is_array())
        return;
    QStringList labels;
    for (const nlohmann::json& name : names)
        labels.append(name.is_string() ? QString::fromStdString(name.get<std::string>()) : QString());
    // Columns beyond the names (cells edited by hand) keep their numbers.
    for (int column = static_cast<int>(labels.size()); column < cells_->columnCount(); ++column)
        labels.append(QString::number(column + 1));
    cells_->setHorizontalHeaderLabels(labels);
}

} // namespace aec::desktop
