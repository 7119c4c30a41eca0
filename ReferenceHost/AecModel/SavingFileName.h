#pragma once

#include <filesystem>

namespace aec::model
{

// A name beside the target for the new file of a save, of its own per process and attempt, so
// that two saves never meet; the caller creates the file exclusively and asks again when the name
// is taken.
std::filesystem::path savingFileBeside(const std::filesystem::path& target, unsigned long processId);

} // namespace aec::model
