#include "AecModel/CanonicalDump.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/EntityStore.h"
#include "AecModel/WideText.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <iterator>

namespace aec::model
{

namespace
{

std::string jsonQuoted(std::string_view text)
{
    return nlohmann::json(text).dump();
}

std::string jsonQuoted(std::wstring_view text)
{
    return jsonQuoted(toUtf8(text));
}

} // namespace

std::string makeCanonicalDump(const CEntityStore& store)
{
    std::string dump;
    auto out = std::back_inserter(dump);
    for (const EntityCollectionInfo& info : entityCollections())
    {
        std::size_t count = 0;
        store.forEach(info.collection, [&count](const CEntity&) { ++count; });
        fmt::format_to(out, "[{}] {}\n", info.key, count);
        store.forEach(info.collection,
                      [&](const CEntity& entity)
                      {
                          const std::optional<TopicId> topic = entity.getTopic();
                          fmt::format_to(out, "{} {} {} topic={}", entity.getId().uuid().toString(),
                                         entity.getType().toString(), jsonQuoted(entity.getName()),
                                         topic ? topic->uuid().toString() : "-");
                          for (const auto& [name, value] : entity.getProperties())
                              fmt::format_to(out, " {}={}", jsonQuoted(name), jsonQuoted(value.toUtf8()));
                          dump += '\n';
                      });
    }
    return dump;
}

} // namespace aec::model
