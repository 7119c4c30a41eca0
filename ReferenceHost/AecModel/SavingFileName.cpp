#include "AecModel/SavingFileName.h"

#include <atomic>
#include <fmt/format.h>

namespace aec::model
{

std::filesystem::path savingFileBeside(const std::filesystem::path& target, unsigned long processId)
{
    static std::atomic<unsigned> attempt = 0;
    std::filesystem::path path = target;
    path += fmt::format(".{}-{}.saving", processId, ++attempt);
    return path;
}

} // namespace aec::model
