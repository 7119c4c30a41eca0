#include "AecModel/PasteDataSerializer.h"

#include "AecModel/CopiedEntities.h"
#include "AecModel/CopyCollectionInfo.h"
#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/JsonFieldError.h"
#include "AecModel/JsonFields.h"
#include "AecModel/PropertyMapJson.h"
#include "AecModel/WideText.h"

#include "aec/Cast.h"
#include "aec/PasteContext.h"

#include "Common/Exception.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace aec::model
{

namespace
{

using nlohmann::json;
namespace fields = json_fields;

json entityToJson(const CopiedEntity& entity)
{
    json object{
        {"id", entity.id.uuid().toString()}, {"type", entity.type.toString()}, {"name", toUtf8(entity.name)}};
    if (entity.topic)
        object["topic"] = {{"id", entity.topic->id.uuid().toString()}, {"name", toUtf8(entity.topic->name)}};
    writeProperties(object, entity.properties);
    return object;
}

CopiedEntity readEntity(const json& object, const EntityCollectionInfo& info)
{
    CopiedEntity entity{EntityId(fields::uuid(fields::member(object, "id"), "id")),
                        EntityTypeId(fields::uuid(fields::member(object, "type"), "type")),
                        fields::wideText(fields::member(object, "name"), "name"),
                        std::nullopt,
                        {}};
    if (!(entity.type == info.type))
        throw EJsonFieldError(
            fmt::format("\"type\" is {}, not the type of the collection's entities", entity.type.toString()));
    if (const json* const topic = fields::optionalMember(object, "topic"))
    {
        if (!info.bearsTopic)
            throw EJsonFieldError("it has a \"topic\", which entities of its collection cannot have");
        entity.topic = CopiedEntity::Topic{TopicId(fields::uuid(fields::member(*topic, "id"), "id")),
                                           fields::wideText(fields::member(*topic, "name"), "name")};
    }
    entity.properties = readProperties(object);
    return entity;
}

void readCollection(const std::string& key, const json& entities, const PasteContext& context,
                    CCopiedEntities& data)
{
    const std::optional<EntityCollection> collection = collectionFromKey(key);
    const CopyCollectionInfo* const copyInfo = collection ? findCopyCollectionInfo(*collection) : nullptr;
    if (copyInfo == nullptr)
        throw common::EException(fmt::format("it has an unknown collection \"{}\"", key));
    if (!entities.is_array())
        throw common::EException(fmt::format("the collection \"{}\" is not a list", key));
    if (!entities.empty() && std::ranges::count(context.collections, *collection) == 0)
        throw common::EException(fmt::format("entities of the collection \"{}\" cannot be pasted here", key));

    std::vector<CopiedEntity>& copies = data.collection(copyInfo->copyCollection);
    for (const json& entity : entities)
    {
        try
        {
            copies.push_back(readEntity(entity, collectionInfo(*collection)));
        }
        catch (const common::EException& error)
        {
            throw common::EException(fmt::format("entity {} of the collection \"{}\" does not read: {}",
                                                 copies.size() + 1, key, error.what()));
        }
    }
}

json parse(const std::wstring& text)
{
    if (text.empty())
        throw common::EException("the clipboard text is empty");
    try
    {
        return json::parse(toUtf8(text));
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
    const json* const format = fields::optionalMember(document, "format");
    if (format == nullptr || !format->is_string() ||
        format->get_ref<const std::string&>() != CPasteDataSerializer::formatName)
        throw common::EException(fmt::format("it is not project entity data (\"format\" is not \"{}\")",
                                             CPasteDataSerializer::formatName));
    const json* const version = fields::optionalMember(document, "version");
    if (version == nullptr || !version->is_number_integer())
        throw common::EException("it has no \"version\" number");
    if (*version != CPasteDataSerializer::version)
        throw common::EException(fmt::format("it has version {}, and this program reads version {} only",
                                             version->dump(), CPasteDataSerializer::version));
}

std::unique_ptr<CCopiedEntities> read(const std::wstring& text, const PasteContext& context)
{
    const json document = parse(text);
    checkHeader(document);
    const json& collections = fields::member(document, "collections");
    if (!collections.is_object())
        throw common::EException("\"collections\" is not a JSON object");
    auto data = std::make_unique<CCopiedEntities>();
    for (const auto& [key, entities] : collections.items())
        readCollection(key, entities, context, *data);
    return data;
}

} // namespace

CPasteDataSerializer::~CPasteDataSerializer() = default;

std::wstring CPasteDataSerializer::serialize(const IProjectEntityCopyData& data)
{
    const CCopiedEntities& copies = aec::cast<CCopiedEntities>(data);
    json collections = json::object();
    for (const CopyCollectionInfo& info : copyCollections())
    {
        json entities = json::array();
        for (const CopiedEntity& entity : copies.collection(info.copyCollection))
            entities.push_back(entityToJson(entity));
        collections[std::string(collectionInfo(info.collection).key)] = std::move(entities);
    }
    const json document{
        {"format", std::string(formatName)}, {"version", version}, {"collections", std::move(collections)}};
    return fromUtf8(document.dump());
}

std::unique_ptr<IProjectEntityPasteData> CPasteDataSerializer::deserialize(const std::wstring& text,
                                                                           const PasteContext& context)
{
    try
    {
        return read(text, context);
    }
    catch (const common::EException& error)
    {
        throw common::EException(fmt::format("The clipboard's content cannot be pasted: {}.", error.what()));
    }
}

} // namespace aec::model
