#pragma once

#include <boost/random/mersenne_twister.hpp>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::soak
{

// Makes up what a user does next, as the command lines the user would type into the terminal host:
// folds, selections, grouping and sorting, create, rename, delete (confirmed or not), copy, cut,
// paste, import, change of topic, undo and redo, and a few commands that only show things. The
// lines name what the session shows now (groups, subgroups, entities, topics) and sometimes what it
// refuses (a taken name, a blank one). The same seed and the same answers of the session give the
// same lines: the generator is Boost's, whose sequences do not depend on the standard library.
class CSoakCommandSource
{
public:
    // The session must outlive the source and have a project open whenever a line is asked for;
    // the table file is what import lines import.
    CSoakCommandSource(std::uint64_t seed, host::CExplorerSession& session, std::filesystem::path tableFile);

    // The command lines of the next user action (a confirmation's answer comes before the delete).
    std::vector<std::string> nextAction();

private:
    std::size_t below(std::size_t bound);
    bool chance(std::size_t percent);

    std::vector<std::string> selectAction();
    std::vector<std::string> toggleAction();
    std::vector<std::string> renameAction();
    std::vector<std::string> shrinkAction();
    std::string quotedNameOf(std::size_t collection);
    std::string randomTopicName();

    boost::random::mt19937_64 random_;
    host::CExplorerSession& session_;
    std::filesystem::path tableFile_;
    std::size_t nextName_ = 1;
};

} // namespace aec::soak
