#include "SpreadsheetFiles/ZipWriter.h"

#include "Common/Exception.h"

#include <cstdio>
#include <zip.h>

namespace aec::spreadsheet
{

namespace
{

[[noreturn]] void fail(const char* what)
{
    throw common::EException(std::string("cannot write the zip archive: ") + what);
}

} // namespace

void CZipWriter::add(const std::string& name, std::string content, const std::string& password)
{
    entries_.push_back({name, std::move(content), password});
}

std::string CZipWriter::bytes() const
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const target = zip_source_buffer_create(nullptr, 0, 0, &error);
    if (target == nullptr)
        fail("no buffer");
    // Kept past zip_close, which would free it, to read the archive back from it.
    zip_source_keep(target);
    zip_t* const archive = zip_open_from_source(target, ZIP_TRUNCATE, &error);
    if (archive == nullptr)
        fail(zip_error_strerror(&error));
    for (const Entry& entry : entries_)
    {
        zip_source_t* const source =
            zip_source_buffer(archive, entry.content.data(), entry.content.size(), 0);
        const zip_int64_t index =
            source == nullptr ? -1 : zip_file_add(archive, entry.name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0)
            fail(zip_strerror(archive));
        if (!entry.password.empty() && zip_file_set_encryption(archive, static_cast<zip_uint64_t>(index),
                                                               ZIP_EM_AES_256, entry.password.c_str()) != 0)
            fail(zip_strerror(archive));
    }
    if (zip_close(archive) != 0)
        fail(zip_strerror(archive));

    std::string bytes;
    zip_stat_t stat;
    if (zip_source_stat(target, &stat) != 0 || zip_source_open(target) != 0)
        fail("the written archive cannot be read back");
    bytes.resize(stat.size);
    const zip_int64_t read = zip_source_read(target, bytes.data(), bytes.size());
    zip_source_close(target);
    zip_source_free(target);
    zip_error_fini(&error);
    if (read != static_cast<zip_int64_t>(bytes.size()))
        fail("the written archive cannot be read back");
    return bytes;
}

} // namespace aec::spreadsheet
