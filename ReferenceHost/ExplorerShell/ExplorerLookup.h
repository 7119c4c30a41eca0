#pragma once

#include "aec/EntityId.h"

#include <optional>
#include <string>
#include <vector>

namespace aec
{
class IEntity;
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
struct ProjectExplorerGroupInfo;
} // namespace aec

namespace aec::host
{
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

struct CommandWord;

// Finds what the user names on the command line in the explorer that the session shows now: groups
// by index or name, subgroups by index, entities by name. Everything is looked up afresh on each
// call, since loading a project replaces the explorer. Names that do not resolve throw
// common::EException with a message that says what would.
class CExplorerLookup
{
public:
    // The session must have a project open whenever the lookup is used.
    explicit CExplorerLookup(host::CExplorerSession& session);

    // A group by its index in the tree or its display name in any case.
    int findGroup(const CommandWord& word) const;
    // A subgroup of the group by its index within the group.
    int findSubgroup(int groupIndex, const CommandWord& word) const;
    IProjectExplorerGroup& getGroup(int groupIndex) const;
    // The host's description of the group at the index.
    const ProjectExplorerGroupInfo& getGroupInfo(int groupIndex) const;

    // The entity that the text names (UTF-8): its identifier, the one entity in the explorer with
    // exactly that name, or "G:NAME", the entity of that name in group G, which tells apart entities
    // of one name in different groups.
    EntityId findEntity(const std::string& name) const;
    // The subgroup's entities in tree order: by name in natural order, as the panel lists them (the
    // explorer keeps them in identifier order, which means nothing to a reader).
    EntityIdList entitiesOf(const IProjectExplorerSubgroup& subgroup) const;
    // Every entity of the group, in tree order.
    EntityIdList entitiesOfGroup(int groupIndex) const;
    // Every entity in the explorer, in tree order.
    EntityIdList allEntities() const;
    // Puts the entities into tree order; entities the explorer does not show are left out.
    EntityIdList inTreeOrder(const EntityIdSet& entities) const;

    // An entity of the open project.
    const IEntity& getEntity(const EntityId& id) const;
    // The entity's name in UTF-8, in quotes.
    std::string quotedName(const EntityId& id) const;
    // The names of the entities, quoted and separated by commas; of a long list only the first
    // names and a count.
    std::string quotedNames(const EntityIdList& entities) const;

private:
    int groupCount() const;
    std::optional<EntityId> findInGroup(const std::string& qualifiedName) const;

    host::CExplorerSession& session_;
};

} // namespace aec::shell
