#include "ExplorerSoak/SoakCommandSource.h"

#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "ExplorerShell/CommandLine.h"
#include "HostFrame/ExplorerSession.h"
#include "aec/EntityCollection.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"
#include "aec/Topic.h"

#include <array>
#include <boost/random/uniform_int_distribution.hpp>
#include <fmt/format.h>
#include <iterator>

namespace aec::soak
{

namespace
{

// The groups with grouping buttons come first in the tree; the first four hold the types that
// the explorer creates and removes.
constexpr std::size_t groupCount = 10;
constexpr std::size_t groupableCount = 7;
constexpr std::size_t handledCount = 4;
// Beyond this many entities the project is made smaller before it grows again, so that a long run
// keeps the size of a real project.
constexpr std::size_t largestProject = 300;

constexpr std::array<const char*, handledCount> creatableTypes{"sheet", "table", "assembly", "material"};

enum class Kind
{
    Select,
    Toggle,
    Group,
    Sort,
    Create,
    Rename,
    Delete,
    Copy,
    Cut,
    Paste,
    Topic,
    Undo,
    Redo,
    Import,
    Show,
};

// How often each kind of action comes, out of the sum.
struct Weight
{
    Kind kind;
    std::size_t weight;
};
constexpr std::array<Weight, 15> weights{{
    {Kind::Select, 18},
    {Kind::Toggle, 12},
    {Kind::Group, 4},
    {Kind::Sort, 3},
    {Kind::Create, 8},
    {Kind::Rename, 7},
    {Kind::Delete, 7},
    {Kind::Copy, 5},
    {Kind::Cut, 4},
    {Kind::Paste, 5},
    {Kind::Topic, 6},
    {Kind::Undo, 10},
    {Kind::Redo, 5},
    {Kind::Import, 1},
    {Kind::Show, 3},
}};

} // namespace

CSoakCommandSource::CSoakCommandSource(std::uint64_t seed, host::CExplorerSession& session,
                                       std::filesystem::path tableFile)
    : random_(seed), session_(session), tableFile_(std::move(tableFile))
{
}

std::vector<std::string> CSoakCommandSource::nextAction()
{
    std::size_t total = 0;
    for (const Weight& weight : weights)
        total += weight.weight;
    std::size_t pick = below(total);
    Kind kind = Kind::Show;
    for (const Weight& weight : weights)
    {
        if (pick < weight.weight)
        {
            kind = weight.kind;
            break;
        }
        pick -= weight.weight;
    }

    const bool large = session_.getProject().entityCount() > largestProject;
    switch (kind)
    {
    case Kind::Select:
        return selectAction();
    case Kind::Toggle:
        return toggleAction();
    case Kind::Group:
        return {fmt::format("group {} {}", below(groupableCount), chance(70) ? "Topic" : "none")};
    case Kind::Sort:
        return {fmt::format("sort {} {}", below(groupableCount), chance(50) ? "asc" : "desc")};
    case Kind::Create:
        if (large)
            return shrinkAction();
        if (chance(30))
            return {fmt::format("create {} \"Soak {}\"", creatableTypes[below(handledCount)], nextName_++)};
        return {fmt::format("create {}", creatableTypes[below(handledCount)])};
    case Kind::Rename:
        return renameAction();
    case Kind::Delete:
        return {chance(80) ? "answer yes" : "answer no", "delete"};
    case Kind::Copy:
        return {"copy"};
    case Kind::Cut:
        return {"cut"};
    case Kind::Paste:
        return large ? shrinkAction() : std::vector<std::string>{"paste"};
    case Kind::Topic:
        return {"topic " + randomTopicName()};
    case Kind::Undo:
        return {"undo"};
    case Kind::Redo:
        return {"redo"};
    case Kind::Import:
        return large ? shrinkAction()
                     : std::vector<std::string>{"import " + shell::CCommandLine::quote(tableFile_.string())};
    case Kind::Show:
        break;
    }
    static constexpr std::array<const char*, 6> shows{"tree", "state",      "history",
                                                      "menu", "properties", "dump"};
    return {shows[below(shows.size())]};
}

std::size_t CSoakCommandSource::below(std::size_t bound)
{
    return boost::random::uniform_int_distribution<std::size_t>(0, bound - 1)(random_);
}

bool CSoakCommandSource::chance(std::size_t percent)
{
    return below(100) < percent;
}

std::vector<std::string> CSoakCommandSource::selectAction()
{
    const std::size_t variant = below(100);
    if (variant < 5)
        return {"select none"};
    if (variant < 10)
        return {fmt::format("select all {}", below(groupCount))};
    if (variant < 25)
        return {fmt::format("select {}{}", chance(70) ? '+' : '-', quotedNameOf(below(groupCount)))};
    // Mostly entities of the explorer's own types, which every operation takes.
    std::string line = "select";
    const std::size_t count = 1 + below(3);
    for (std::size_t index = 0; index < count; ++index)
        line += ' ' + quotedNameOf(chance(85) ? below(groupableCount) : below(groupCount));
    return {line};
}

std::vector<std::string> CSoakCommandSource::toggleAction()
{
    const std::size_t group = below(groupCount);
    const IProjectExplorerGroup& shown =
        *std::next(session_.getExplorer().getGroups().begin(), static_cast<std::ptrdiff_t>(group));
    const auto subgroups = static_cast<std::size_t>(std::ranges::distance(shown.getSubgroups()));
    if (subgroups == 0 || chance(40))
        return {fmt::format("toggle {}", group)};
    return {fmt::format("toggle {} {}", group, below(subgroups))};
}

std::vector<std::string> CSoakCommandSource::renameAction()
{
    const std::size_t collection = below(groupableCount);
    const std::string entity = quotedNameOf(collection);
    const std::size_t variant = below(100);
    // A name the collection already has and a blank one are refused; the refusal must change nothing.
    if (variant < 10)
        return {fmt::format("rename {} {}", entity, quotedNameOf(collection))};
    if (variant < 13)
        return {fmt::format("rename {} \" \"", entity)};
    if (variant < 20)
        return {fmt::format("rename {} \"Überarbeitet {}\"", entity, nextName_++)};
    return {fmt::format("rename {} \"Soak {}\"", entity, nextName_++)};
}

std::vector<std::string> CSoakCommandSource::shrinkAction()
{
    return {fmt::format("select all {}", below(handledCount)), "answer yes", "delete"};
}

std::string CSoakCommandSource::quotedNameOf(std::size_t collection)
{
    const model::CProject& project = session_.getProject();
    const EntityIdList entities = project.getEntities(static_cast<EntityCollection>(collection));
    if (entities.empty())
        // A name that nothing has: the command is refused, which is worth a line too.
        return "\"Nothing by this name\"";
    const EntityId& chosen = entities[below(entities.size())];
    return shell::CCommandLine::quote(model::toUtf8(project.findEntity(chosen)->getName()));
}

std::string CSoakCommandSource::randomTopicName()
{
    const std::vector<CTopic> topics = session_.getProject().getProjectTopics();
    if (topics.empty())
        return "\"No topic\"";
    return shell::CCommandLine::quote(model::toUtf8(topics[below(topics.size())].getName()));
}

} // namespace aec::soak
