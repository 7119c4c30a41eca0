#include "SyntheticProject/SyntheticProjectBuilder.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"
#include "Common/UUID.h"
#include "SyntheticProject/AsciiCase.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <fmt/xchar.h>
#include <optional>
#include <vector>

namespace benchmarks
{

namespace
{

using aec::EntityCollection;

// Shares of the entities that are not topics, in collection order: assemblies and the styles
// outnumber sheets and tables; linked models and images are few.
constexpr std::array<double, aec::entityCollectionCount> collectionShares{
    0.10, // sheets
    0.04, // tables
    0.30, // assemblies
    0.12, // materials
    0.15, // door styles
    0.12, // window styles
    0.14, // reinforcement styles
    0.00, // topics: counted apart
    0.01, // linked models
    0.02, // images
};

// Entities of a topic-bearing collection that belong to no topic.
constexpr std::size_t noTopicOneIn = 12;

std::size_t topicCountOf(std::size_t entityCount)
{
    return std::min(CSyntheticProjectBuilder::defaultTopicCount, entityCount / 10);
}

} // namespace

CSyntheticProjectBuilder::CSyntheticProjectBuilder(std::uint32_t seed) : engine_(seed) {}

CSyntheticProjectBuilder::CollectionSizes CSyntheticProjectBuilder::collectionSizes(std::size_t entityCount)
{
    const std::size_t topics = topicCountOf(entityCount);
    const std::size_t others = entityCount - topics;
    CollectionSizes sizes{};
    std::size_t given = 0;
    for (std::size_t index = 0; index < sizes.size(); ++index)
    {
        sizes[index] =
            static_cast<std::size_t>(std::floor(collectionShares[index] * static_cast<double>(others)));
        given += sizes[index];
    }
    sizes[aec::model::collectionIndex(EntityCollection::Topics)] = topics;
    // What rounding down left over goes to the largest collection.
    sizes[aec::model::collectionIndex(EntityCollection::Assemblies)] += others - given;
    return sizes;
}

std::unique_ptr<aec::model::CProject> CSyntheticProjectBuilder::build(std::size_t entityCount)
{
    const CollectionSizes sizes = collectionSizes(entityCount);
    auto project = std::make_unique<aec::model::CProject>();
    const auto newId = [this]
    {
        common::UUID::Bytes bytes{};
        for (std::size_t half = 0; half < 2; ++half)
        {
            const std::uint64_t random = engine_();
            for (std::size_t byte = 0; byte < 8; ++byte)
                bytes[8 * half + byte] = static_cast<std::uint8_t>(random >> (8 * byte));
        }
        return aec::EntityId(common::UUID::version4FromRandomBytes(bytes));
    };

    const std::size_t topicCount = sizes[aec::model::collectionIndex(EntityCollection::Topics)];
    std::vector<aec::TopicId> topics;
    topics.reserve(topicCount);
    for (std::size_t serialNumber = 1; serialNumber <= topicCount; ++serialNumber)
        topics.emplace_back(project
                                ->addEntity(EntityCollection::Topics,
                                            nameOf(EntityCollection::Topics, serialNumber), std::nullopt,
                                            newId())
                                .uuid());

    for (const aec::model::EntityCollectionInfo& info : aec::model::entityCollections())
    {
        if (info.collection == EntityCollection::Topics)
            continue;
        const std::size_t size = sizes[aec::model::collectionIndex(info.collection)];
        for (std::size_t serialNumber = 1; serialNumber <= size; ++serialNumber)
        {
            std::optional<aec::TopicId> topic;
            if (info.bearsTopic && !topics.empty())
                if (const std::size_t index = topicIndex(topics.size()); index < topics.size())
                    topic = topics[index];
            project->addEntity(info.collection, nameOf(info.collection, serialNumber), topic, newId());
        }
    }
    return project;
}

std::size_t CSyntheticProjectBuilder::below(std::size_t bound)
{
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(engine_);
}

bool CSyntheticProjectBuilder::oneIn(std::size_t chances)
{
    return below(chances) == 0;
}

const wchar_t* CSyntheticProjectBuilder::pick(std::initializer_list<const wchar_t*> choices)
{
    return choices.begin()[below(choices.size())];
}

std::wstring CSyntheticProjectBuilder::serial(std::size_t value)
{
    if (oneIn(6))
        return fmt::format(L"{:04}", value);
    return fmt::format(L"{}", value);
}

std::size_t CSyntheticProjectBuilder::topicIndex(std::size_t topicCount)
{
    if (oneIn(noTopicOneIn))
        return topicCount;
    // Squaring a uniform draw favours the first topics: the first holds about 3 % of the
    // entities, the last few almost none, as the main levels of a building outweigh its details.
    const double draw = std::uniform_real_distribution<double>(0.0, 1.0)(engine_);
    return std::min(topicCount - 1, static_cast<std::size_t>(draw * draw * static_cast<double>(topicCount)));
}

std::wstring CSyntheticProjectBuilder::nameOf(EntityCollection collection, std::size_t serialNumber)
{
    std::wstring name;
    switch (collection)
    {
    case EntityCollection::Sheets:
        name = sheetName(serialNumber);
        break;
    case EntityCollection::Tables:
        name = tableName(serialNumber);
        break;
    case EntityCollection::Assemblies:
        name = assemblyName(serialNumber);
        break;
    case EntityCollection::Materials:
        name = materialName(serialNumber);
        break;
    case EntityCollection::DoorStyles:
        name = doorStyleName(serialNumber);
        break;
    case EntityCollection::WindowStyles:
        name = windowStyleName(serialNumber);
        break;
    case EntityCollection::ReinforcementStyles:
        name = reinforcementStyleName(serialNumber);
        break;
    case EntityCollection::Topics:
        name = topicName(serialNumber);
        break;
    case EntityCollection::LinkedModels:
        name = linkedModelName(serialNumber);
        break;
    case EntityCollection::Images:
        name = imageName(serialNumber);
        break;
    }
    varyCase(name);
    return name;
}

std::wstring CSyntheticProjectBuilder::levelName()
{
    switch (below(4))
    {
    case 0:
        return fmt::format(L"Level {}", below(40) + 1);
    case 1:
        return pick(
            {L"Ground floor", L"Basement", L"Roof", L"Mezzanine", L"Erdgeschoss", L"Rez-de-chaussée"});
    case 2:
        return fmt::format(L"L{:02}", below(40));
    default:
        return fmt::format(L"Niveau {}", static_cast<int>(below(30)) - 3);
    }
}

// Topics name parts of the building: levels and what is on them, zones, façades, phases.
std::wstring CSyntheticProjectBuilder::topicName(std::size_t serialNumber)
{
    std::wstring name;
    switch (serialNumber % 5)
    {
    case 0:
        name = fmt::format(L"Level {} {}", serialNumber / 5,
                           pick({L"ceiling", L"floor", L"slab", L"Decke", L"plafond", L"walls"}));
        break;
    case 1:
        name = fmt::format(L"Zone {}{}", pick({L"A", L"B", L"C", L"D", L"Nord", L"Süd"}), serialNumber);
        break;
    case 2:
        name = fmt::format(L"{} {} {}", pick({L"Façade", L"Facade", L"Fassade", L"Фасад"}),
                           pick({L"north", L"east", L"south", L"west"}), serialNumber);
        break;
    case 3:
        name = fmt::format(L"Phase {} - {}", serialNumber,
                           pick({L"demolition", L"shell", L"fit-out", L"Übergabe"}));
        break;
    default:
        name = fmt::format(L"{} {}", pick({L"MEP riser", L"Stair core", L"Lift shaft", L"Block"}),
                           serial(serialNumber));
        break;
    }
    return name;
}

std::wstring CSyntheticProjectBuilder::sheetName(std::size_t serialNumber)
{
    const wchar_t* const discipline = pick({L"A", L"S", L"M", L"E", L"P", L"L", L"FP"});
    const wchar_t* const view =
        pick({L"floor plan", L"Reflected ceiling plan", L"Framing plan", L"Sections", L"Elevations",
              L"Details", L"Grundriss", L"Coupe", L"Façades", L"Übersicht"});
    return fmt::format(L"{}-{} {} {}", discipline, serial(100 + serialNumber), levelName(), view);
}

std::wstring CSyntheticProjectBuilder::tableName(std::size_t serialNumber)
{
    return fmt::format(L"{} {} - {}",
                       pick({L"Door schedule", L"Room schedule", L"Window schedule", L"Material takeoff",
                             L"Türliste", L"Nomenclature"}),
                       serial(serialNumber), levelName());
}

std::wstring CSyntheticProjectBuilder::assemblyName(std::size_t serialNumber)
{
    return fmt::format(L"{} {}-{} {}mm",
                       pick({L"Basic wall", L"Exterior wall - Brick", L"Interior partition", L"Curtain wall",
                             L"Floor slab", L"Roof", L"Mur béton", L"Außenwand KS", L"Стена"}),
                       pick({L"W", L"F", L"R"}), serial(serialNumber), 50 + 25 * below(16));
}

std::wstring CSyntheticProjectBuilder::materialName(std::size_t serialNumber)
{
    return fmt::format(L"{} ({})",
                       pick({L"Concrete C25/30", L"Concrete C30/37", L"Béton armé", L"Бетон", L"Steel S355",
                             L"Timber GL24h", L"Glass 8mm", L"Gypsum board 12.5", L"Plâtre", L"Ξύλο",
                             L"Mineral wool", L"Brick 240", L"Ziegel"}),
                       serial(serialNumber));
}

std::wstring CSyntheticProjectBuilder::doorStyleName(std::size_t serialNumber)
{
    return fmt::format(L"{} D-{} {}{}{}{}",
                       pick({L"Door", L"Double door", L"Tür", L"Porte", L"Sliding door"}),
                       serial(serialNumber), 600 + 100 * below(15), oneIn(3) ? L"×" : L"x",
                       2000 + 125 * below(5), pick({L"", L" EI30", L" T30", L" T90", L" RC2"}));
}

std::wstring CSyntheticProjectBuilder::windowStyleName(std::size_t serialNumber)
{
    return fmt::format(L"{} W-{} {}{}{}", pick({L"Window", L"Fenêtre", L"Fenster", L"Skylight"}),
                       serial(serialNumber), 400 + 100 * below(20), oneIn(3) ? L"×" : L"x",
                       600 + 150 * below(12));
}

std::wstring CSyntheticProjectBuilder::reinforcementStyleName(std::size_t serialNumber)
{
    return fmt::format(L"{} Ø{} {} @{} R-{}",
                       pick({L"Rebar", L"Bewehrung", L"Armature", L"Mesh", L"Stirrup"}), 6 + 2 * below(14),
                       pick({L"B500B", L"B500A", L"Grade 60"}), 50 + 25 * below(12), serial(serialNumber));
}

std::wstring CSyntheticProjectBuilder::linkedModelName(std::size_t serialNumber)
{
    return fmt::format(L"{} {}.{}",
                       pick({L"Structural model", L"Site survey", L"HVAC model", L"Modèle façade"}),
                       serial(serialNumber), pick({L"ifc", L"dwg"}));
}

std::wstring CSyntheticProjectBuilder::imageName(std::size_t serialNumber)
{
    return fmt::format(L"{} {}.{}", pick({L"Photo", L"Logo", L"Render", L"Schéma"}), serial(serialNumber),
                       pick({L"jpg", L"png"}));
}

void CSyntheticProjectBuilder::varyCase(std::wstring& name)
{
    // Lower case twice as often as capitals.
    if (const std::size_t variant = below(25); variant <= 2)
        setAsciiCase(name, variant == 2);
}

} // namespace benchmarks
