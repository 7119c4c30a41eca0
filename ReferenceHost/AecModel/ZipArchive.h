#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

struct zip;

namespace aec::model
{

// A zip archive in memory, read through libzip: the container of .xlsx and .ods files. Entries are
// read in chunks, so a sheet's XML, often ten times the archive's size, is never held whole.
class CZipArchive
{
public:
    // Receives an entry's bytes chunk by chunk, with how much of the entry has come so far.
    using ChunkReader = std::function<void(std::string_view chunk, std::size_t done, std::size_t total)>;

    // Throws common::EException when the bytes are no readable zip archive.
    explicit CZipArchive(std::string_view bytes);
    ~CZipArchive();
    CZipArchive(const CZipArchive&) = delete;
    CZipArchive& operator=(const CZipArchive&) = delete;

    bool contains(const std::string& entry) const;
    // Throws common::EException when the entry is missing, encrypted or damaged. The reader may stop
    // early by throwing CZipArchive::Stop.
    void read(const std::string& entry, const ChunkReader& reader) const;
    // A small entry whole (a manifest, a list of relations).
    std::string readWhole(const std::string& entry) const;

    struct Stop
    {
    };

private:
    struct Closer
    {
        void operator()(zip* archive) const noexcept;
    };
    std::unique_ptr<zip, Closer> archive_;
};

} // namespace aec::model
