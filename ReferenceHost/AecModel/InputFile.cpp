#include "AecModel/InputFile.h"

#include "Common/Exception.h"

namespace aec::model
{

std::ifstream openInputFile(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        throw common::EException("the file does not exist");
    if (!std::filesystem::is_regular_file(path, error))
        throw common::EException("it is not a regular file");
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw common::EException("the file cannot be opened for reading");
    return stream;
}

} // namespace aec::model
