#include "ExplorerShell/ExplorerLookup.h"

#include "AecModel/Project.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "Common/LogicalCompare.h"
#include "Common/UUID.h"
#include "ExplorerShell/CommandLine.h"
#include "HostFrame/ExplorerSession.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <charconv>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <iterator>
#include <optional>
#include <tuple>

namespace aec::shell
{

namespace
{

std::optional<int> parseIndex(const CommandWord& word)
{
    int index = 0;
    const char* const end = word.text.data() + word.text.size();
    const auto [last, error] = std::from_chars(word.text.data(), end, index);
    if (word.text.empty() || error != std::errc() || last != end)
        return std::nullopt;
    return index;
}

std::string groupNames()
{
    std::string names;
    for (const ProjectExplorerGroupInfo& group : projectExplorerGroups())
        names += (names.empty() ? "" : ", ") + model::toUtf8(group.name);
    return names;
}

} // namespace

CExplorerLookup::CExplorerLookup(host::CExplorerSession& session) : session_(session) {}

int CExplorerLookup::findGroup(const CommandWord& word) const
{
    const int count = groupCount();
    if (const std::optional<int> index = parseIndex(word))
    {
        if (*index < 0 || *index >= count)
            throw common::EException(
                fmt::format("There is no group {}; groups are numbered 0 to {}.", word.text, count - 1));
        return *index;
    }
    int index = 0;
    for (const IProjectExplorerGroup& group : session_.getExplorer().getGroups())
    {
        if (boost::algorithm::iequals(model::toUtf8(group.getName()), word.text))
            return index;
        ++index;
    }
    throw common::EException(
        fmt::format("There is no group \"{}\"; name one of {} or give its number.", word.text, groupNames()));
}

int CExplorerLookup::findSubgroup(int groupIndex, const CommandWord& word) const
{
    const IProjectExplorerGroup& group = getGroup(groupIndex);
    const auto count = static_cast<int>(std::ranges::distance(group.getSubgroups()));
    const std::optional<int> index = parseIndex(word);
    if (!index)
        throw common::EException(fmt::format("Give the subgroup as its number within {}, not \"{}\".",
                                             model::toUtf8(group.getName()), word.text));
    if (*index < 0 || *index >= count)
    {
        const std::string name = model::toUtf8(group.getName());
        if (count == 0)
            throw common::EException(fmt::format("{} has no subgroups.", name));
        throw common::EException(
            count == 1 ? fmt::format("{} has no subgroup {}; its one subgroup is 0.", name, word.text)
                       : fmt::format("{} has no subgroup {}; its subgroups are numbered 0 to {}.", name,
                                     word.text, count - 1));
    }
    return *index;
}

IProjectExplorerGroup& CExplorerLookup::getGroup(int groupIndex) const
{
    return *std::next(session_.getExplorer().getGroups().begin(), groupIndex);
}

const ProjectExplorerGroupInfo& CExplorerLookup::getGroupInfo(int groupIndex) const
{
    const auto& groups = projectExplorerGroups();
    const auto info = std::ranges::find(groups, getGroup(groupIndex).getId(), &ProjectExplorerGroupInfo::id);
    if (info == groups.end())
        throw common::EException("The explorer shows a group that this host does not know.");
    return *info;
}

EntityId CExplorerLookup::findEntity(const std::string& name) const
{
    // An identifier names one entity whatever the names are.
    if (const std::optional<common::UUID> uuid = common::UUID::tryParse(std::string_view(name)))
        if (session_.getProject().findEntity(EntityId(*uuid)) != nullptr)
            return EntityId(*uuid);

    const std::wstring wideName = model::fromUtf8(name);
    std::vector<EntityId> found;
    std::vector<std::string> places;
    int groupIndex = 0;
    for (const IProjectExplorerGroup& group : session_.getExplorer().getGroups())
    {
        for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
            for (const EntityId& id : subgroup.getEntities())
                if (getEntity(id).getName() == wideName)
                {
                    found.push_back(id);
                    places.push_back(fmt::format("{}:{}", groupIndex, name));
                }
        ++groupIndex;
    }
    if (found.size() == 1)
        return found.front();
    if (found.size() > 1)
        throw common::EException(fmt::format("{} is ambiguous: {} entities have that name; name one with its "
                                             "group number, as tree shows it: {}.",
                                             CCommandLine::quote(name), found.size(),
                                             fmt::join(places, ", ")));
    if (const std::optional<EntityId> inGroup = findInGroup(name))
        return *inGroup;
    throw common::EException(fmt::format("No entity is named {}.", CCommandLine::quote(name)));
}

std::optional<EntityId> CExplorerLookup::findInGroup(const std::string& qualifiedName) const
{
    // "G:NAME", the group's number in the tree and the entity's name; names are unique within a
    // group's collection, so this names one entity.
    const std::size_t colon = qualifiedName.find(':');
    if (colon == std::string::npos)
        return std::nullopt;
    const std::optional<int> index = parseIndex(CommandWord{qualifiedName.substr(0, colon)});
    if (!index || *index < 0 || *index >= groupCount())
        return std::nullopt;
    const std::wstring name = model::fromUtf8(qualifiedName.substr(colon + 1));
    for (const IProjectExplorerSubgroup& subgroup : getGroup(*index).getSubgroups())
        for (const EntityId& id : subgroup.getEntities())
            if (getEntity(id).getName() == name)
                return id;
    return std::nullopt;
}

EntityIdList CExplorerLookup::entitiesOf(const IProjectExplorerSubgroup& subgroup) const
{
    struct NamedEntity
    {
        const std::wstring* name;
        EntityId id;
    };
    std::vector<NamedEntity> entities;
    for (const EntityId& id : subgroup.getEntities())
        entities.push_back({&getEntity(id).getName(), id});
    // Names equal but for case or leading zeros fall back on their characters, then on identity, so
    // that the order never depends on where the entities were before.
    std::ranges::sort(entities,
                      [](const NamedEntity& left, const NamedEntity& right)
                      {
                          const int order = common::compareLogical(*left.name, *right.name);
                          if (order != 0)
                              return order < 0;
                          return std::tie(*left.name, left.id) < std::tie(*right.name, right.id);
                      });
    EntityIdList ordered;
    ordered.reserve(entities.size());
    for (const NamedEntity& entity : entities)
        ordered.push_back(entity.id);
    return ordered;
}

EntityIdList CExplorerLookup::entitiesOfGroup(int groupIndex) const
{
    EntityIdList entities;
    for (const IProjectExplorerSubgroup& subgroup : getGroup(groupIndex).getSubgroups())
    {
        const EntityIdList ofSubgroup = entitiesOf(subgroup);
        entities.insert(entities.end(), ofSubgroup.begin(), ofSubgroup.end());
    }
    return entities;
}

EntityIdList CExplorerLookup::allEntities() const
{
    EntityIdList entities;
    for (int index = 0; index < groupCount(); ++index)
    {
        const EntityIdList ofGroup = entitiesOfGroup(index);
        entities.insert(entities.end(), ofGroup.begin(), ofGroup.end());
    }
    return entities;
}

EntityIdList CExplorerLookup::inTreeOrder(const EntityIdSet& entities) const
{
    EntityIdList ordered;
    for (const EntityId& id : allEntities())
        if (entities.contains(id))
            ordered.push_back(id);
    return ordered;
}

const IEntity& CExplorerLookup::getEntity(const EntityId& id) const
{
    const IEntity* const entity = session_.getProject().findEntity(id);
    if (entity == nullptr)
        throw common::EException(fmt::format("The project has no entity {}.", id.uuid().toString()));
    return *entity;
}

std::string CExplorerLookup::quotedName(const EntityId& id) const
{
    return CCommandLine::quote(model::toUtf8(getEntity(id).getName()));
}

std::string CExplorerLookup::quotedNames(const EntityIdList& entities) const
{
    // A selection of thousands would fill the terminal for minutes; its start and a count say
    // enough, and `dump` lists everything for whoever needs it.
    constexpr std::size_t longestList = 20;
    constexpr std::size_t shownOfLongList = 10;
    const std::size_t shown = entities.size() > longestList ? shownOfLongList : entities.size();
    std::string names;
    for (std::size_t index = 0; index < shown; ++index)
        names += (names.empty() ? "" : ", ") + quotedName(entities[index]);
    if (shown < entities.size())
        names += fmt::format(" and {} more ({} in all)", entities.size() - shown, entities.size());
    return names;
}

int CExplorerLookup::groupCount() const
{
    return static_cast<int>(std::ranges::distance(session_.getExplorer().getGroups()));
}

} // namespace aec::shell
