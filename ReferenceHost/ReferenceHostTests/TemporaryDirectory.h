#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace aec::model::test
{

// A fresh folder named after the running test, removed with its content when the test ends.
class CTemporaryDirectory
{
public:
    explicit CTemporaryDirectory(const std::string& prefix)
    {
        const auto* const test = ::testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::temp_directory_path() / (prefix + test->name());
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~CTemporaryDirectory() { std::filesystem::remove_all(path_); }
    CTemporaryDirectory(const CTemporaryDirectory&) = delete;
    CTemporaryDirectory& operator=(const CTemporaryDirectory&) = delete;

    const std::filesystem::path& path() const noexcept { return path_; }

    // Writes the bytes, as they are, into a file of the folder.
    std::filesystem::path write(const std::string& name, const std::string& bytes) const
    {
        const std::filesystem::path file = path_ / name;
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    // The bytes of a file, as they are.
    static std::string read(const std::filesystem::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path path_;
};

} // namespace aec::model::test
