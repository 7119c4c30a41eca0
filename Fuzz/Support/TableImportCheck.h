#pragma once

#include "AecModel/Project.h"
#include "AecModel/TableImporter.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace fuzz
{

// What the fuzz targets of the table import assert about every file, whatever its kind.
class CTableImportCheck
{
public:
    using Rows = std::vector<std::vector<std::string>>;

    // Imports the file in a transaction, as the explorer's import command does. A file that does not
    // import must be refused with a message naming the file, in a sentence, and leave the project as
    // it was.
    static std::optional<aec::EntityId> importInTransaction(aec::model::CProject& project,
                                                            const aec::model::CTableImporter& importer,
                                                            const std::filesystem::path& file);

    // The imported table's rows, the header row first when it has one. The table must be
    // rectangular, its counts and column names must agree with its cells.
    static Rows tableOf(const aec::model::CProject& project, const aec::EntityId& table);

    // Imports the file, written into the scratch directory under the name: refused as above, or a
    // table as above; undone, the project is as it was.
    static void checkFile(const std::filesystem::path& file);

    // Undoing every import must give the project back as it was.
    static void checkUndoneTo(aec::model::CProject& project, const std::string& dumpBefore);
};

} // namespace fuzz
