#pragma once

#include <filesystem>
#include <string_view>

namespace fuzz
{

// A directory of this process's own under the temporary directory (TMPDIR), for the targets whose
// code under test reads files. It is removed with everything in it when the object goes.
class CScratchDirectory
{
public:
    explicit CScratchDirectory(std::string_view purpose);
    ~CScratchDirectory();
    CScratchDirectory(const CScratchDirectory&) = delete;
    CScratchDirectory& operator=(const CScratchDirectory&) = delete;

    std::filesystem::path path(std::string_view fileName) const;
    // Writes the bytes as the file's whole content and returns its path.
    std::filesystem::path write(std::string_view fileName, std::string_view content) const;

private:
    std::filesystem::path directory_;
};

} // namespace fuzz
