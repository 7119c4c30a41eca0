#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/TitleBlockIO.h"

#include <string_view>

namespace aec::model
{

// Imports CSV files (see CCsvReader) as new table entities of a CProject. The table is named after
// the file's stem, made unique among the tables ("Doors", then "Doors (2)"). Its content goes into
// three free-form properties, so that it is saved, loaded, copied, undone and dumped like any other
// property:
// - "rows" and "columns": the counts, in decimal;
// - "cells": a JSON list of rows, each a list of texts, all rows as long as the longest one.
// Rows shorter than the longest are padded with empty cells, as a spreadsheet shows them.
class AECMODEL_API CTableImporter final : public ITitleBlockIO
{
public:
    static constexpr std::string_view rowsProperty = "rows";
    static constexpr std::string_view columnsProperty = "columns";
    static constexpr std::string_view cellsProperty = "cells";

    CTableImporter() = default;
    ~CTableImporter() override;

    // The project must be a CProject. The whole file is read and checked before the project changes:
    // a file that cannot be imported throws common::EException naming the file, the line and the
    // fault, and leaves the project as it was.
    EntityId importTable(IProject& project, const std::filesystem::path& file) const override;
};

} // namespace aec::model
