#pragma once

#include <filesystem>
#include <fstream>

namespace aec::model
{

// The file opened for binary reading; throws common::EException saying why it cannot be (it does
// not exist, it is no regular file, it cannot be opened), for the caller to put behind the file's
// name.
std::ifstream openInputFile(const std::filesystem::path& path);

} // namespace aec::model
