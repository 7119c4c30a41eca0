#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/TableImportReport.h"
#include "AecModel/TableReadProgress.h"
#include "AecModel/TableReadSettings.h"
#include "aec/TitleBlockIO.h"

#include <optional>
#include <string_view>

namespace aec::model
{

// Imports table files (see CTableFileReader) as new table entities of a CProject. The table is
// named after the file's stem, made unique among the tables ("Doors", then "Doors (2)"). Its content
// goes into free-form properties, so that it is saved, loaded, copied, undone and dumped like any
// other property:
// - "rows" and "columns": the counts of data rows and columns, in decimal;
// - "cells": a JSON list of the data rows, each a list of texts, all as long as the longest row
//   (shorter rows are padded with empty cells, as a spreadsheet shows them); kept as the reader's
//   compact cells (CPropertyValue) until it is saved or shown as text;
// - "column names": when the file has a header row, its texts as a JSON list as long as a row.
class AECMODEL_API CTableImporter final : public ITitleBlockIO
{
public:
    static constexpr std::string_view rowsProperty = "rows";
    static constexpr std::string_view columnsProperty = "columns";
    static constexpr std::string_view cellsProperty = "cells";
    static constexpr std::string_view columnNamesProperty = "column names";

    CTableImporter() = default;
    ~CTableImporter() override;

    // The project must be a CProject. The whole file is read and checked before the project changes:
    // a file that cannot be imported throws common::EException naming the file and the fault, and
    // leaves the project as it was.
    EntityId importTable(IProject& project, const std::filesystem::path& file) const override;

    // What the next import reads as given rather than detected (a preview's choices); the import
    // after it detects again.
    void setChoices(const TableReadChoices& choices) { choices_ = choices; }
    // Told how far each import has come, and 1 when it ends, whether it succeeded or not; may cancel
    // it by throwing (but not when told 1), which leaves the project as it was.
    void setProgress(TableReadProgress progress) { progress_ = std::move(progress); }
    // What the last import that succeeded found, for the host's status line.
    const std::optional<TableImportReport>& getLastReport() const noexcept { return lastReport_; }

private:
    // Taken by the const import: the host interface's operation is const, and the choices are the
    // caller's word for one import, not part of the importer's state.
    mutable TableReadChoices choices_;
    TableReadProgress progress_;
    // Written by the const import: the host interface's operation is const, and the report is no
    // part of the importer's behaviour, only a record of its last run.
    mutable std::optional<TableImportReport> lastReport_;
};

} // namespace aec::model
