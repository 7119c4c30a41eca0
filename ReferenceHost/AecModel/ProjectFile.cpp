#include "AecModel/ProjectFile.h"

#include "AecModel/AtomicFileWrite.h"
#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/EntityNameRule.h"
#include "AecModel/EntityRecord.h"
#include "AecModel/InputFile.h"
#include "AecModel/JsonFieldError.h"
#include "AecModel/JsonFields.h"
#include "AecModel/JsonSyntaxError.h"
#include "AecModel/Project.h"
#include "AecModel/PropertyMapJson.h"
#include "AecModel/UniqueNameGenerator.h"
#include "AecModel/WideText.h"
#include "Common/Exception.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace aec::model
{

namespace
{

using nlohmann::json;
namespace fields = json_fields;

using Level = CUnknownFileFields::Level;

json entityToJson(const CEntity& entity, const CUnknownFileFields& unknown)
{
    json object{{"id", entity.getId().uuid().toString()}, {"name", toUtf8(entity.getName())}};
    if (const std::optional<TopicId> topic = entity.getTopic())
        object["topic"] = topic->uuid().toString();
    writeProperties(object, entity.getProperties());
    if (const json* const fields = unknown.ofEntity(entity.getId()))
        CUnknownFileFields::mergeInto(object, *fields);
    return object;
}

json projectToJson(const CProject& project)
{
    const CUnknownFileFields& unknown = project.getUnknownFileFields();
    json collections = json::object();
    for (const EntityCollectionInfo& info : entityCollections())
    {
        json entities = json::array();
        for (const EntityId& id : project.getEntities(info.collection))
            entities.push_back(entityToJson(*project.findEntity(id), unknown));
        collections[std::string(info.key)] = std::move(entities);
    }
    CUnknownFileFields::mergeInto(collections, unknown.at(Level::Collections));
    json preferences = project.getPreferences().toJson();
    CUnknownFileFields::mergeInto(preferences, unknown.at(Level::Preferences));
    json document{{"format", std::string(CProjectFile::formatName)},
                  {"version", CProjectFile::version},
                  {"collections", std::move(collections)},
                  {"preferences", std::move(preferences)}};
    CUnknownFileFields::mergeInto(document, unknown.at(Level::Document));
    return document;
}

// The fields that this version reads; the rest of each object is kept as it is.
constexpr std::array<std::string_view, 4> knownDocumentFields{"format", "version", "collections",
                                                              "preferences"};
constexpr std::array<std::string_view, 4> knownEntityFields{"id", "name", "topic", "properties"};
constexpr std::array<std::string_view, 1> knownPreferenceFields{"projectExplorer"};

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

CollectionRecords readCollections(const json& collections, CUnknownFileFields& unknown)
{
    if (!collections.is_object())
        throw common::EException("\"collections\" is not a JSON object");
    json unknownCollections = json::object();
    for (const auto& item : collections.items())
        if (!collectionFromKey(item.key()))
            unknownCollections[item.key()] = item.value();
    unknown.set(Level::Collections, std::move(unknownCollections));

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
                unknown.setEntity(records.back().id,
                                  CUnknownFileFields::unknownOf(entity, knownEntityFields));
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
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (stream.bad())
        throw common::EException("the file cannot be read");
    try
    {
        return json::parse(text);
    }
    // Not only parse_error: a number beyond the range of double is an out_of_range error.
    catch (const json::exception& parseError)
    {
        throw common::EException(
            fmt::format("it is not valid JSON at {}", describeJsonSyntaxError(text, parseError)));
    }
}

// The file's version: this one, or a newer one whose additions are kept.
int checkHeader(const json& document)
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
    if (*version < 1 || *version > std::numeric_limits<int>::max())
        throw common::EException(
            fmt::format("it has version {}, which no version of this program writes", version->dump()));
    return version->get<int>();
}

std::unique_ptr<CProject> buildProject(const CollectionRecords& collections, const json* preferences,
                                       CUnknownFileFields unknown)
{
    auto project = std::make_unique<CProject>();
    project->getUnknownFileFields() = std::move(unknown);
    // Topics first, since the other entities refer to them; each collection keeps its own order.
    std::vector<std::string> renamed;
    for (const bool topicsPass : {true, false})
        for (const auto& [collection, records] : collections)
            if ((collection == EntityCollection::Topics) == topicsPass)
            {
                // A file that breaks the naming rule (written by hand, or by an older version) keeps
                // its entities: the names are mended the way paste mends them.
                CUniqueNameGenerator names(*project, collection);
                for (const EntityRecord& record : records)
                {
                    const std::wstring name = names.takeUnique(repairedName(collection, record.name));
                    if (name != record.name)
                        renamed.push_back(fmt::format("\"{}\" became \"{}\"",
                                                      toValidUtf8(toUtf8(record.name)), toUtf8(name)));
                    project->addEntity(collection, name, record.topic, record.id);
                    for (const auto& [property, value] : record.properties)
                        project->setEntityProperty(record.id, property, value);
                }
            }
    if (!renamed.empty())
        project->addLoadNote(fmt::format(
            "{} {} did not follow the naming rule (no blank or hidden names, none that another of its "
            "kind already has) and {} renamed: {}.",
            renamed.size(), renamed.size() == 1 ? "name" : "names", renamed.size() == 1 ? "was" : "were",
            fmt::join(renamed.begin(), renamed.begin() + std::min<std::ptrdiff_t>(std::ssize(renamed), 5),
                      ", ")));
    if (preferences != nullptr)
        project->getPreferences().fromJson(*preferences);
    return project;
}

} // namespace

void CProjectFile::save(const CProject& project, const std::filesystem::path& path)
{
    const std::string text = projectToJson(project).dump(1) + '\n';
    try
    {
        writeFileAtomically(path, text);
    }
    catch (const common::EException& error)
    {
        throw common::EException(
            fmt::format("Cannot save the project file \"{}\": {}.", path.string(), error.what()));
    }
}

std::unique_ptr<CProject> CProjectFile::load(const std::filesystem::path& path)
{
    try
    {
        const json document = parseFile(path);
        const int fileVersion = checkHeader(document);
        const auto collections = document.find("collections");
        if (collections == document.end())
            throw common::EException("it has no \"collections\"");
        CUnknownFileFields unknown;
        unknown.set(Level::Document, CUnknownFileFields::unknownOf(document, knownDocumentFields));
        const CollectionRecords records = readCollections(*collections, unknown);
        checkReferences(records);
        const auto preferences = document.find("preferences");
        if (preferences != document.end())
            unknown.set(Level::Preferences,
                        CUnknownFileFields::unknownOf(*preferences, knownPreferenceFields));
        auto project = buildProject(records, preferences == document.end() ? nullptr : &*preferences,
                                    std::move(unknown));
        if (fileVersion > CProjectFile::version)
            project->addLoadNote(
                fmt::format("\"{}\" was written by a newer version of this program (file version {}); what "
                            "this version does not know is kept and saved unchanged.",
                            path.string(), fileVersion));
        return project;
    }
    catch (const common::EException& error)
    {
        throw common::EException(
            fmt::format("Cannot load the project file \"{}\": {}.", path.string(), error.what()));
    }
}

} // namespace aec::model
