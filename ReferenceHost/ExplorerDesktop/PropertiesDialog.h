#pragma once

#include "aec/EntityId.h"

#include <QDialog>

namespace aec::model
{
class CProject;
} // namespace aec::model

namespace aec::desktop
{

// What the host's property editor shows when the user edits the properties of entities: one page
// per entity with everything the project holds of it.
class CPropertiesDialog final : public QDialog
{
    Q_OBJECT

public:
    CPropertiesDialog(const EntityIdSet& entities, const model::CProject& project, QWidget* parent = nullptr);
    ~CPropertiesDialog() override;
};

} // namespace aec::desktop
