#include "AecModel/AtomicFileWrite.h"
#include "AecModel/LinkTarget.h"
#include "AecModel/SavingFileName.h"
#include "Common/Exception.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace aec::model
{

namespace
{

std::string reasonOf(int error)
{
    switch (error)
    {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return "there is not enough room left on the disk";
    case EACCES:
    case EPERM:
    case EROFS:
        return "you may not write there";
    default:
        return std::generic_category().message(error);
    }
}

[[noreturn]] void fail(const std::string& what, int error)
{
    throw common::EException(fmt::format("{} ({})", what, reasonOf(error)));
}

// Owns the new file until it has replaced the target: the destructor closes it and, unless it was
// renamed, removes it, so that no failure leaves a half-written file behind.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::filesystem::path& target)
    {
        // O_EXCL makes sure that it is a new file.
        for (int tries = 0; tries < 100; ++tries)
        {
            path_ = savingFileBeside(target, static_cast<unsigned long>(::getpid()));
            // 0666 less the umask, as any new file of the user; a target's mode is copied later.
            descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (descriptor_ >= 0)
                return;
            if (errno != EEXIST)
                fail("no new file can be made in its folder", errno);
        }
        throw common::EException("no new file can be made in its folder");
    }
    ~TemporaryFile()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
        if (!renamed_)
            ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    void write(std::string_view bytes)
    {
        while (!bytes.empty())
        {
            const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                fail("it cannot be written", written < 0 ? errno : ENOSPC);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    // The target's permissions, and its owner and group where the system lets this user give them.
    void takeOwnershipAndModeOf(const struct stat& target)
    {
        if (::fchmod(descriptor_, target.st_mode & 07777) != 0)
            fail("its permissions cannot be kept", errno);
        // Only the superuser may give a file away; everyone else keeps the file as their own.
        (void)::fchown(descriptor_, target.st_uid, target.st_gid);
    }

    void flushAndClose()
    {
        if (::fsync(descriptor_) != 0)
            fail("it cannot be flushed to the disk", errno);
        const int descriptor = descriptor_;
        descriptor_ = -1;
        if (::close(descriptor) != 0)
            fail("it cannot be written", errno);
    }

    void renameOver(const std::filesystem::path& target)
    {
        if (::rename(path_.c_str(), target.c_str()) != 0)
            fail("it cannot be replaced", errno);
        renamed_ = true;
    }

private:
    std::filesystem::path path_;
    int descriptor_ = -1;
    bool renamed_ = false;
};

// The rename is on the disk only once the folder is; a failure here loses nothing, the new file is
// in place, so it is not reported.
void flushFolder(const std::filesystem::path& folder)
{
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    (void)::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

void writeFileAtomically(const std::filesystem::path& path, std::string_view bytes)
{
    const std::filesystem::path target = finalLinkTarget(path);
    struct stat existing
    {
    };
    const bool exists = ::stat(target.c_str(), &existing) == 0;
    if (!exists && errno != ENOENT)
        fail("it cannot be reached", errno);
    if (exists)
    {
        if (!S_ISREG(existing.st_mode))
            throw common::EException("it is not a regular file");
        // rename() needs only the folder to be writable; a file that its owner made read-only, or
        // that belongs to someone else, must not be replaced behind their back.
        if (::access(target.c_str(), W_OK) != 0)
            throw common::EException("you may not write it");
    }

    TemporaryFile file(target);
    file.write(bytes);
    if (exists)
        file.takeOwnershipAndModeOf(existing);
    file.flushAndClose();
    file.renameOver(target);
    flushFolder(target.parent_path());
}

} // namespace aec::model
