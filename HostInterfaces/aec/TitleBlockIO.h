#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

#include <filesystem>

namespace aec
{

class IProject;

// Reads and writes the tabular content of title blocks and tables.
class AEC_INTERFACE ITitleBlockIO
{
public:
    virtual ~ITitleBlockIO() = default;

    // Imports the table file into a new table entity of the project; throws common::EException
    // naming the file and the fault when it cannot be read.
    virtual EntityId importTable(IProject& project, const std::filesystem::path& file) const = 0;
};

} // namespace aec
