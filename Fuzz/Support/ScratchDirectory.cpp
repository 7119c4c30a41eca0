#include "Support/ScratchDirectory.h"

#include <fmt/format.h>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

namespace fuzz
{

CScratchDirectory::CScratchDirectory(std::string_view purpose)
    : directory_(std::filesystem::temp_directory_path() / fmt::format("{}-{}", purpose, ::getpid()))
{
    std::filesystem::create_directories(directory_);
}

CScratchDirectory::~CScratchDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
}

std::filesystem::path CScratchDirectory::path(std::string_view fileName) const
{
    return directory_ / fileName;
}

std::filesystem::path CScratchDirectory::write(std::string_view fileName, std::string_view content) const
{
    const std::filesystem::path file = path(fileName);
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    stream.close();
    // The harness itself failing is no finding about the code under test, but it must not pass
    // for one either.
    if (!stream)
        throw std::runtime_error(fmt::format("the scratch file {} cannot be written", file.string()));
    return file;
}

} // namespace fuzz
