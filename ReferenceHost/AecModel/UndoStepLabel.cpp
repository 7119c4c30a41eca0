#include "AecModel/UndoStepLabel.h"

#include "AecModel/EntityNameRule.h"
#include "AecModel/Project.h"
#include "AecModel/UndoStep.h"
#include "AecModel/WideText.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>
#include <unordered_map>
#include <vector>

namespace aec::model
{

namespace
{

// The entities a step touched in the way that decides its label, with the names they had after it.
struct Subjects
{
    std::vector<EntityId> ids;
    std::unordered_map<EntityId, std::wstring> names;
    std::unordered_map<EntityId, EntityCollection> collections;

    void add(const EntityId& id, std::wstring name, std::optional<EntityCollection> collection)
    {
        if (!names.contains(id))
            ids.push_back(id);
        names[id] = std::move(name);
        if (collection)
            collections[id] = *collection;
    }
};

std::string lowerCase(std::wstring_view noun)
{
    std::string text = toUtf8(noun);
    text.front() = static_cast<char>(text.front() - 'A' + 'a');
    return text;
}

// "sheet “A-3”" for one entity, "3 entities" for more.
std::string objectOf(const Subjects& subjects, const CProject& project)
{
    if (subjects.ids.size() != 1)
        return fmt::format("{} entities", subjects.ids.size());
    const EntityId& id = subjects.ids.front();
    std::optional<EntityCollection> collection;
    if (const auto known = subjects.collections.find(id); known != subjects.collections.end())
        collection = known->second;
    else if (const CEntity* const entity = project.findEntity(id))
        collection = entity->getCollection();
    const std::string noun = collection ? lowerCase(entityNoun(*collection)) : std::string("entity");
    return fmt::format("{} “{}”", noun, toUtf8(subjects.names.at(id)));
}

std::wstring currentName(const CProject& project, const EntityId& id)
{
    const CEntity* const entity = project.findEntity(id);
    return entity != nullptr ? entity->getName() : std::wstring();
}

} // namespace

std::string undoStepLabel(const CUndoStep& step, const CProject& project)
{
    Subjects added;
    Subjects removed;
    Subjects renamed;
    Subjects retopiced;
    Subjects edited;
    for (const ModelChange& change : step.changes)
    {
        if (const auto* const add = std::get_if<EntityAdded>(&change))
            added.add(add->entity.id, add->entity.name, add->entity.collection);
        else if (const auto* const remove = std::get_if<EntityRemoved>(&change))
            removed.add(remove->entity.id, remove->entity.name, remove->entity.collection);
        else if (const auto* const rename = std::get_if<EntityRenamed>(&change))
        {
            // A rename of an entity that the step made is part of making it.
            if (added.names.contains(rename->id))
                added.names[rename->id] = rename->after;
            else
                renamed.add(rename->id, rename->after, std::nullopt);
        }
        else if (const auto* const topic = std::get_if<EntityTopicChanged>(&change))
            retopiced.add(topic->id, currentName(project, topic->id), std::nullopt);
        else if (const auto* const property = std::get_if<EntityPropertyChanged>(&change))
        {
            if (!added.names.contains(property->id))
                edited.add(property->id, currentName(project, property->id), std::nullopt);
        }
    }

    if (!added.ids.empty())
    {
        const std::string_view verb = step.name.starts_with("Paste")    ? "Paste"
                                      : step.name.starts_with("Import") ? "Import"
                                                                        : "Create";
        return fmt::format("{} {}", verb, objectOf(added, project));
    }
    // Deleting a topic takes it from its entities too; what the user did is the delete.
    if (!removed.ids.empty())
        return fmt::format("Delete {}", objectOf(removed, project));
    if (!renamed.ids.empty())
        return fmt::format("Rename {}", objectOf(renamed, project));
    if (!retopiced.ids.empty())
        return fmt::format("Change the topic of {}", objectOf(retopiced, project));
    if (!edited.ids.empty())
        return fmt::format("Edit the properties of {}", objectOf(edited, project));
    return step.name;
}

} // namespace aec::model
