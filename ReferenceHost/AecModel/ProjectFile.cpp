#include "AecModel/ProjectFile.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/EntityRecord.h"
#include "AecModel/InputFile.h"
#include "AecModel/JsonFieldError.h"
#include "AecModel/JsonFields.h"
#include "AecModel/Project.h"
#include "AecModel/PropertyMapJson.h"
#include "AecModel/WideText.h"

#include "Common/Exception.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace aec::model
{

namespace
{

using nlohmann::json;
namespace fields = json_fields;

json entityToJson(const CEntity& entity)
{
    json object{{"id", entity.getId().uuid().toString()}, {"name", toUtf8(entity.getName())}};
    if (const std::optional<TopicId> topic = entity.getTopic())
        object["topic"] = topic->uuid().toString();
    writeProperties(object, entity.getProperties());
    return object;
}

json projectToJson(const CProject& project)
{
    json collections = json::object();
    for (const EntityCollectionInfo& info : entityCollections())
    {
        json entities = json::array();
        for (const EntityId& id : project.getEntities(info.collection))
            entities.push_back(entityToJson(*project.findEntity(id)));
        collections[std::string(info.key)] = std::move(entities);
    }
    return json{{"format", std::string(CProjectFile::formatName)},
                {"version", CProjectFile::version},
                {"collections", std::move(collections)},
                {"preferences", project.getPreferences().toJson()}};
}

EntityRecord readEntity(const json& object, EntityCollection collection)
{
    EntityRecord record;
    record.collection = collection;
    record.id = EntityId(fields::uuid(fields::member(object, "id"), "id"));
    // The project gives a nil identifier a fresh one, so the file would name no entity by it and
    // every load would make another one.
    if (record.id.isNull())
        throw EJsonFieldError("\"id\" is the nil UUID, which names no entity");
    record.name = fields::wideText(fields::member(object, "name"), "name");
    if (const json* const topic = fields::optionalMember(object, "topic"))
        record.topic = TopicId(fields::uuid(*topic, "topic"));
    record.properties = readProperties(object);
    return record;
}

// The file's entities, collection by collection in explorer order.
using CollectionRecords = std::vector<std::pair<EntityCollection, std::vector<EntityRecord>>>;

CollectionRecords readCollections(const json& collections)
{
    if (!collections.is_object())
        throw common::EException("\"collections\" is not a JSON object");
    for (const auto& item : collections.items())
        if (!collectionFromKey(item.key()))
            throw common::EException(fmt::format("it has an unknown collection \"{}\"", item.key()));

    CollectionRecords result;
    for (const EntityCollectionInfo& info : entityCollections())
    {
        std::vector<EntityRecord>& records =
            result.emplace_back(info.collection, std::vector<EntityRecord>{}).second;
        const auto entities = collections.find(std::string(info.key));
        if (entities == collections.end())
            continue;
        if (!entities->is_array())
            throw common::EException(fmt::format("the collection \"{}\" is not a list", info.key));
        for (const json& entity : *entities)
        {
            try
            {
                records.push_back(readEntity(entity, info.collection));
            }
            catch (const EJsonFieldError& error)
            {
                throw common::EException(fmt::format("entity {} of the collection \"{}\" does not read: {}",
                                                     records.size() + 1, info.key, error.what()));
            }
        }
    }
    return result;
}

// Identifiers unique across the file, and topics that name topic entities of the file, given only
// to entities that bear topics.
void checkReferences(const CollectionRecords& collections)
{
    std::unordered_set<EntityId> ids;
    std::unordered_set<EntityId> topics;
    for (const auto& [collection, records] : collections)
        for (const EntityRecord& record : records)
        {
            if (!ids.insert(record.id).second)
                throw common::EException(
                    fmt::format("the entity {} appears twice", record.id.uuid().toString()));
            if (collection == EntityCollection::Topics)
                topics.insert(record.id);
        }
    for (const auto& [collection, records] : collections)
        for (const EntityRecord& record : records)
        {
            if (!record.topic)
                continue;
            if (!collectionInfo(collection).bearsTopic)
                throw common::EException(
                    fmt::format("the entity {} of \"{}\" has a topic, which its collection does "
                                "not allow",
                                record.id.uuid().toString(), collectionInfo(collection).key));
            if (!topics.contains(EntityId(record.topic->uuid())))
                throw common::EException(
                    fmt::format("the entity {} refers to the topic {}, which is not in the file",
                                record.id.uuid().toString(), record.topic->uuid().toString()));
        }
}

json parseFile(const std::filesystem::path& path)
{
    std::ifstream stream = openInputFile(path);
    try
    {
        return json::parse(stream);
    }
    // Not only parse_error: a number beyond the range of double is an out_of_range error.
    catch (const json::exception& parseError)
    {
        throw common::EException(fmt::format("it is not valid JSON ({})", fields::parseFailure(parseError)));
    }
}

void checkHeader(const json& document)
{
    if (!document.is_object())
        throw common::EException("it is not a JSON object");
    const auto format = document.find("format");
    if (format == document.end() || !format->is_string() ||
        format->get_ref<const std::string&>() != CProjectFile::formatName)
        throw common::EException(
            fmt::format("it is not a project file (\"format\" is not \"{}\")", CProjectFile::formatName));
    const auto version = document.find("version");
    if (version == document.end() || !version->is_number_integer())
        throw common::EException("it has no \"version\" number");
    if (*version != CProjectFile::version)
        throw common::EException(fmt::format("it has version {}, and this program reads version {} only",
                                             version->dump(), CProjectFile::version));
}

std::unique_ptr<CProject> buildProject(const CollectionRecords& collections, const json* preferences)
{
    auto project = std::make_unique<CProject>();
    // Topics first, since the other entities refer to them; each collection keeps its own order.
    for (const bool topicsPass : {true, false})
        for (const auto& [collection, records] : collections)
            if ((collection == EntityCollection::Topics) == topicsPass)
                for (const EntityRecord& record : records)
                {
                    project->addEntity(collection, record.name, record.topic, record.id);
                    for (const auto& [name, value] : record.properties)
                        project->setEntityProperty(record.id, name, value);
                }
    if (preferences != nullptr)
        project->getPreferences().fromJson(*preferences);
    return project;
}

} // namespace

void CProjectFile::save(const CProject& project, const std::filesystem::path& path)
{
    const std::string text = projectToJson(project).dump(1);
    // Written beside the target and then moved over it, so that a failed save leaves the old file.
    std::filesystem::path temporary = path;
    temporary += ".saving";
    {
        std::ofstream stream(temporary, std::ios::binary | std::ios::trunc);
        stream << text << '\n';
        stream.close();
        if (!stream)
            throw common::EException(
                fmt::format("Cannot save the project file \"{}\": it cannot be written.", path.string()));
    }
    std::error_code error;
    std::filesystem::rename(temporary, path, error);
    if (error)
    {
        const std::string reason = error.message();
        std::filesystem::remove(temporary, error);
        throw common::EException(
            fmt::format("Cannot save the project file \"{}\": {}.", path.string(), reason));
    }
}

std::unique_ptr<CProject> CProjectFile::load(const std::filesystem::path& path)
{
    try
    {
        const json document = parseFile(path);
        checkHeader(document);
        const auto collections = document.find("collections");
        if (collections == document.end())
            throw common::EException("it has no \"collections\"");
        const CollectionRecords records = readCollections(*collections);
        checkReferences(records);
        const auto preferences = document.find("preferences");
        return buildProject(records, preferences == document.end() ? nullptr : &*preferences);
    }
    catch (const common::EException& error)
    {
        throw common::EException(
            fmt::format("Cannot load the project file \"{}\": {}.", path.string(), error.what()));
    }
}

} // namespace aec::model
