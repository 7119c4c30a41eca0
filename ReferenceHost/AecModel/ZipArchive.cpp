#include "AecModel/ZipArchive.h"

#include "Common/Exception.h"

#include <array>
#include <fmt/format.h>
#include <zip.h>

namespace aec::model
{

namespace
{

constexpr std::size_t chunkSize = 64 * 1024;

struct FileCloser
{
    void operator()(zip_file_t* file) const noexcept { zip_fclose(file); }
};

} // namespace

void CZipArchive::Closer::operator()(zip* archive) const noexcept
{
    zip_discard(archive);
}

CZipArchive::CZipArchive(std::string_view bytes)
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    zip* const archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error);
    if (archive == nullptr)
    {
        if (source != nullptr)
            zip_source_free(source);
        const std::string reason = zip_error_strerror(&error);
        zip_error_fini(&error);
        throw common::EException(fmt::format("the spreadsheet is damaged ({})", reason));
    }
    zip_error_fini(&error);
    archive_.reset(archive);
}

CZipArchive::~CZipArchive() = default;

bool CZipArchive::contains(const std::string& entry) const
{
    return zip_name_locate(archive_.get(), entry.c_str(), 0) >= 0;
}

void CZipArchive::read(const std::string& entry, const ChunkReader& reader) const
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_stat(archive_.get(), entry.c_str(), 0, &stat) != 0)
        throw common::EException(fmt::format("the spreadsheet is damaged: it has no {}", entry));
    if ((stat.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && stat.encryption_method != ZIP_EM_NONE)
        throw common::EException("the spreadsheet is encrypted; save it without a password");
    const std::unique_ptr<zip_file_t, FileCloser> file(zip_fopen(archive_.get(), entry.c_str(), 0));
    if (!file)
        throw common::EException(fmt::format("the spreadsheet is damaged ({})",
                                             zip_error_strerror(zip_get_error(archive_.get()))));
    const std::size_t total = (stat.valid & ZIP_STAT_SIZE) != 0 ? stat.size : 0;
    std::array<char, chunkSize> chunk;
    std::size_t done = 0;
    try
    {
        for (;;)
        {
            const zip_int64_t count = zip_fread(file.get(), chunk.data(), chunk.size());
            if (count < 0)
                throw common::EException(fmt::format("the spreadsheet is damaged ({})",
                                                     zip_error_strerror(zip_file_get_error(file.get()))));
            if (count == 0)
                return;
            done += static_cast<std::size_t>(count);
            reader(std::string_view(chunk.data(), static_cast<std::size_t>(count)), done, total);
        }
    }
    catch (const Stop&)
    {
    }
}

std::string CZipArchive::readWhole(const std::string& entry) const
{
    std::string bytes;
    read(entry, [&](std::string_view chunk, std::size_t, std::size_t) { bytes += chunk; });
    return bytes;
}

} // namespace aec::model
