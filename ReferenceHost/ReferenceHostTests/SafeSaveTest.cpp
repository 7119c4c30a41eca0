#include "AecModel/Project.h"
#include "AecModel/ProjectFile.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "TemporaryDirectory.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <utility>
#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace aec::model
{
namespace
{

namespace fs = std::filesystem;

// Saving the sample project over files of every kind that a user meets.
class SafeSaveTest : public ::testing::Test
{
protected:
    // The message of a save that must fail.
    std::string failedSave(const fs::path& path) const
    {
        try
        {
            CProjectFile::save(*project, path);
        }
        catch (const common::EException& error)
        {
            return error.what();
        }
        ADD_FAILURE() << "saved " << path;
        return {};
    }

    // The names in the folder: a failed save must leave no file of its own behind.
    std::vector<std::string> namesInFolder() const
    {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(directory))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    test::CTemporaryDirectory temporary{"aec-safe-save-"};
    const fs::path& directory = temporary.path();
    std::unique_ptr<CProject> project = buildSampleProject();
};

TEST_F(SafeSaveTest, AFileIsReplacedAndAFolderRefusedWithoutLeftovers)
{
    const fs::path target = temporary.write("project.json", "old");
    EXPECT_NE(failedSave(directory).find("not a regular file"), std::string::npos);
    CProjectFile::save(*project, target);
    CProjectFile::save(*project, target);
    EXPECT_EQ(CProjectFile::load(target)->canonicalDump(), project->canonicalDump());
    EXPECT_EQ(namesInFolder(), std::vector<std::string>{"project.json"});
}

#if !defined(_WIN32) && defined(EXPLORER_SHELL_PROGRAM)
// The command that runs a program as a user without privileges, for the superuser, who may write
// any file: setpriv as the user "nobody", else a user namespace of its own, in which the files of
// the real superuser are no one's to override. Empty when the system has neither.
std::string unprivilegedPrefix()
{
    if (std::system("command -v setpriv >/dev/null 2>&1") == 0)
        return "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    if (std::system("unshare --user true >/dev/null 2>&1") == 0)
        return "unshare --user ";
    return {};
}

// Runs the shell line through the system's shell; the merged output and the exit status.
std::pair<std::string, int> runCommand(const std::string& line)
{
    std::string output;
    FILE* const pipe = ::popen((line + " 2>&1").c_str(), "r");
    if (pipe == nullptr)
        return {"cannot start: " + line, -1};
    std::array<char, 4096> buffer{};
    while (const std::size_t read = std::fread(buffer.data(), 1, buffer.size(), pipe))
        output.append(buffer.data(), read);
    const int status = ::pclose(pipe);
    return {output, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}
#endif

TEST_F(SafeSaveTest, AReadOnlyFileIsRefused)
{
#if !defined(_WIN32) && defined(EXPLORER_SHELL_PROGRAM)
    if (::geteuid() == 0)
    {
        // The superuser may write any file; the refusal is for everyone else, so the terminal
        // program saves as someone else, in a folder that user may write to: only the file itself
        // is read-only, and the program must see that before it writes anything.
        const std::string prefix = unprivilegedPrefix();
        if (prefix.empty())
            GTEST_SKIP()
                << "running as the superuser, and neither setpriv nor a user namespace (unshare) can "
                   "drop the privilege to write any file";
        fs::permissions(directory, fs::perms(0777));
        const fs::path readOnly = temporary.write("read-only.json", "old");
        fs::permissions(readOnly, fs::perms(0444));
        const fs::path script = temporary.write("save.shell", "save " + readOnly.string() + "\n");
        const auto [output, status] =
            runCommand(prefix + EXPLORER_SHELL_PROGRAM + " --seed 1 --script " + script.string());
        EXPECT_EQ(status, 1) << output;
        EXPECT_NE(output.find("error: "), std::string::npos) << output;
        EXPECT_NE(output.find("you may not write it"), std::string::npos) << output;
        EXPECT_EQ(test::CTemporaryDirectory::read(readOnly), "old");
        EXPECT_EQ(fs::status(readOnly).permissions(), fs::perms(0444));
        EXPECT_EQ(namesInFolder(), (std::vector<std::string>{"read-only.json", "save.shell"}));
        fs::permissions(readOnly, fs::perms(0644));
        return;
    }
#elif !defined(_WIN32)
    if (::geteuid() == 0)
        GTEST_SKIP()
            << "running as the superuser, and this build has no terminal program to run as another user";
#endif
    const fs::path readOnly = temporary.write("read-only.json", "old");
    fs::permissions(readOnly, fs::perms(0444));
    EXPECT_NE(failedSave(readOnly).find("you may not write it"), std::string::npos);
    EXPECT_EQ(test::CTemporaryDirectory::read(readOnly), "old");
    EXPECT_EQ(fs::status(readOnly).permissions(), fs::perms(0444));
    // The temporary directory must be able to remove it afterwards.
    fs::permissions(readOnly, fs::perms(0644));
}

// Links, modes, devices and file size limits are POSIX matters; Wine gives none of them as Linux does.
#ifndef _WIN32
TEST_F(SafeSaveTest, ALinkStaysALinkAndTheFileItLeadsToIsSaved)
{
    const fs::path real = temporary.write("real.json", "old");
    fs::create_directory(directory / "links");
    fs::create_symlink("../real.json", directory / "links" / "project.json");

    CProjectFile::save(*project, directory / "links" / "project.json");

    EXPECT_TRUE(fs::is_symlink(directory / "links" / "project.json"));
    EXPECT_EQ(CProjectFile::load(real)->canonicalDump(), project->canonicalDump());
}

TEST_F(SafeSaveTest, TheFilesModeIsKept)
{
    const fs::path shared = temporary.write("shared.json", "old");
    fs::permissions(shared, fs::perms(0640));
    CProjectFile::save(*project, shared);
    EXPECT_EQ(fs::status(shared).permissions(), fs::perms(0640));
}

TEST_F(SafeSaveTest, FailuresLeaveTheOldFileAndNoTemporaryFile)
{
    const fs::path target = temporary.write("project.json", "old");

    // A device is no file to replace: /dev/full takes no byte, and renaming over it would remove it.
    EXPECT_NE(failedSave("/dev/full").find("not a regular file"), std::string::npos);
    EXPECT_NE(failedSave(directory).find("not a regular file"), std::string::npos);

    // A file size limit fails the write the way a full disk does.
    struct rlimit before
    {
    };
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limited = before;
    limited.rlim_cur = 16;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);
    const std::string message = failedSave(target);
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, previousHandler);

    EXPECT_NE(message.find("not enough room"), std::string::npos) << message;
    EXPECT_NE(message.find(target.string()), std::string::npos) << message;
    EXPECT_EQ(test::CTemporaryDirectory::read(target), "old");
    EXPECT_EQ(namesInFolder(), std::vector<std::string>{"project.json"});
}

#endif

} // namespace
} // namespace aec::model
