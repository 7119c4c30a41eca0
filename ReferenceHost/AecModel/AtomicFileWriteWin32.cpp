#include "AecModel/AtomicFileWrite.h"
#include "AecModel/LinkTarget.h"
#include "AecModel/SavingFileName.h"
#include "Common/Exception.h"

#include <algorithm>
#include <fmt/format.h>
#include <system_error>
#include <windows.h>

namespace aec::model
{

// The Windows counterpart of the POSIX safe save: the same steps through the Win32 API, where
// MoveFileExW replaces a file in one step, as rename() does on POSIX. The file's owner and mode
// need no copying: a new file takes the access rules of its folder, as the old one did, and the
// read-only attribute, Windows' own mode, is refused before anything is written.

namespace
{

std::string reasonOf(DWORD error)
{
    switch (error)
    {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return "there is not enough room left on the disk";
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return "you may not write there";
    default:
        return std::system_category().message(static_cast<int>(error));
    }
}

[[noreturn]] void fail(const std::string& what, DWORD error)
{
    throw common::EException(fmt::format("{} ({})", what, reasonOf(error)));
}

// Owns the new file until it has replaced the target: the destructor closes it and, unless it was
// moved over the target, deletes it, so that no failure leaves a half-written file behind.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::filesystem::path& target)
    {
        // CREATE_NEW makes sure that it is a new file.
        for (int tries = 0; tries < 100; ++tries)
        {
            path_ = savingFileBeside(target, ::GetCurrentProcessId());
            handle_ = ::CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
            if (handle_ != INVALID_HANDLE_VALUE)
                return;
            if (const DWORD error = ::GetLastError(); error != ERROR_FILE_EXISTS)
                fail("no new file can be made in its folder", error);
        }
        throw common::EException("no new file can be made in its folder");
    }
    ~TemporaryFile()
    {
        if (handle_ != INVALID_HANDLE_VALUE)
            ::CloseHandle(handle_);
        if (!moved_)
            ::DeleteFileW(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void write(std::string_view bytes)
    {
        while (!bytes.empty())
        {
            // WriteFile counts in DWORD: a larger buffer goes in pieces.
            const auto piece = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
            DWORD written = 0;
            if (!::WriteFile(handle_, bytes.data(), piece, &written, nullptr))
                fail("it cannot be written", ::GetLastError());
            if (written == 0)
                fail("it cannot be written", ERROR_DISK_FULL);
            bytes.remove_prefix(written);
        }
    }

    void flushAndClose()
    {
        if (!::FlushFileBuffers(handle_))
            fail("it cannot be flushed to the disk", ::GetLastError());
        const HANDLE handle = handle_;
        handle_ = INVALID_HANDLE_VALUE;
        if (!::CloseHandle(handle))
            fail("it cannot be written", ::GetLastError());
    }

    // MOVEFILE_WRITE_THROUGH returns only once the move is on the disk, which POSIX gets by
    // flushing the folder.
    void moveOver(const std::filesystem::path& target)
    {
        if (!::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            fail("it cannot be replaced", ::GetLastError());
        moved_ = true;
    }

private:
    std::filesystem::path path_;
    HANDLE handle_ = INVALID_HANDLE_VALUE;
    bool moved_ = false;
};

} // namespace

void writeFileAtomically(const std::filesystem::path& path, std::string_view bytes)
{
    const std::filesystem::path target = finalLinkTarget(path);
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (!exists)
    {
        const DWORD error = ::GetLastError();
        if (error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND)
            fail("it cannot be reached", error);
    }
    if (exists)
    {
        if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0)
            throw common::EException("it is not a regular file");
        // MoveFileExW would refuse to replace it only with a bare "access denied".
        if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
            throw common::EException("you may not write it");
    }

    TemporaryFile file(target);
    file.write(bytes);
    file.flushAndClose();
    file.moveOver(target);
}

} // namespace aec::model
