// Loads the input as a project file. A file that does not load must be refused with an EException
// that names the file; a file that loads must open in the reference host's explorer session and
// save to a file that loads again to the same content and the same explorer state.

#include "AecModel/Project.h"
#include "AecModel/ProjectFile.h"
#include "Common/Exception.h"
#include "HostFrame/ExplorerSession.h"
#include "Support/FuzzCheck.h"
#include "Support/ScratchDirectory.h"

#include <cstddef>
#include <cstdint>
#include <fmt/format.h>
#include <memory>
#include <string>
#include <string_view>

namespace
{

using namespace aec;

const fuzz::CScratchDirectory& scratch()
{
    static const fuzz::CScratchDirectory directory("project-file");
    return directory;
}

host::CExplorerSession& session()
{
    static host::CExplorerSession explorerSession(7);
    return explorerSession;
}

void checkProjectFile(std::string_view content)
{
    const std::filesystem::path file = scratch().write("project.json", content);
    std::unique_ptr<model::CProject> project;
    try
    {
        project = model::CProjectFile::load(file);
    }
    catch (const common::EException& error)
    {
        const std::string_view message = error.what();
        FUZZ_CHECK(message.starts_with(fmt::format("Cannot load the project file \"{}\": ", file.string())));
        FUZZ_CHECK(message.ends_with('.'));
        return;
    }
    FUZZ_CHECK(project != nullptr);
    const std::string dump = project->canonicalDump();

    session().open(std::move(project));
    FUZZ_CHECK(session().getProject().canonicalDump() == dump);
    const std::filesystem::path saved = scratch().path("saved.json");
    session().save(saved);
    const std::unique_ptr<model::CProject> reloaded = model::CProjectFile::load(saved);
    FUZZ_CHECK(reloaded->canonicalDump() == dump);
    FUZZ_CHECK(reloaded->getPreferences().getWarnings().empty());
    FUZZ_CHECK(reloaded->getPreferences().getProjectExplorerState() ==
               session().getProject().getPreferences().getProjectExplorerState());
    session().close();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput(
        [&] { checkProjectFile(std::string_view(reinterpret_cast<const char*>(data), size)); });
}
