#pragma once

#include "aec/AecApi.h"

#include <string>

namespace aec
{

// Asks the user for a table file to import.
class AEC_INTERFACE IImportFileDialog
{
public:
    virtual ~IImportFileDialog() = default;

    // The chosen file's path, empty when the user cancelled.
    virtual std::wstring askForFile() const = 0;
};

} // namespace aec
