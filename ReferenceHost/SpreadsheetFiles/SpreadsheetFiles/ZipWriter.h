#pragma once

#include <deque>
#include <string>

namespace aec::spreadsheet
{

// A zip archive made in memory through libzip.
class CZipWriter
{
public:
    // Adds an entry, deflated; encrypted with AES-256 under the password when one is given.
    void add(const std::string& name, std::string content, const std::string& password = {});
    // The archive's bytes.
    std::string bytes() const;

private:
    struct Entry
    {
        std::string name;
        std::string content;
        std::string password;
    };
    std::deque<Entry> entries_;
};

} // namespace aec::spreadsheet
