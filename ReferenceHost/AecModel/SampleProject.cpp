#include "AecModel/SampleProject.h"

#include "AecModel/Project.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace aec::model
{

namespace
{

enum SampleTopic
{
    Architecture,
    Structure,
    Services,
    Level2,
    Level10,
    Facades,
    Landscape,
    NoTopic,
};

constexpr std::array<std::wstring_view, NoTopic> topicNames{
    L"Architecture", L"Structure", L"MEP services", L"level 2", L"Level 10", L"Façades", L"landscape",
};

struct SampleEntity
{
    std::wstring_view name;
    SampleTopic topic;
};

struct SampleCollection
{
    EntityCollection collection;
    std::vector<SampleEntity> entities;
};

const std::vector<SampleCollection>& sampleCollections()
{
    static const std::vector<SampleCollection> collections{
        {EntityCollection::Sheets,
         {{L"Sheet A-101", Architecture},
          {L"Sheet A-20", Architecture},
          {L"Sheet A-3", Level2},
          {L"sheet a-102", Level10},
          {L"Sheet S-1", Structure},
          {L"Sheet S-10", Structure},
          {L"Sheet S-2", Level2},
          {L"Cover sheet", NoTopic},
          {L"Übersicht", Facades},
          {L"Sheet M-5", Services}}},
        {EntityCollection::Tables,
         {{L"Door schedule", Architecture},
          {L"Window schedule", Facades},
          {L"Room list 2", Level2},
          {L"Room list 10", Level10},
          {L"room list 1", NoTopic},
          {L"Material takeoff", Structure},
          {L"Quantités", NoTopic}}},
        {EntityCollection::Assemblies,
         {{L"Wall W-12", Architecture},
          {L"Wall W-2", Architecture},
          {L"wall w-3", Facades},
          {L"Floor F-1", Structure},
          {L"Roof R-10", Level10},
          {L"Roof R-9", NoTopic},
          {L"Ceiling C-1", Level2}}},
        {EntityCollection::Materials,
         {{L"Concrete C30/37", Structure},
          {L"Concrete C25/30", Structure},
          {L"Brick 240", Architecture},
          {L"brick 115", Architecture},
          {L"Steel S355", Structure},
          {L"Glass 8mm", Facades},
          {L"Gypsum board 12.5", NoTopic},
          {L"Holzfaserdämmung", Landscape}}},
        {EntityCollection::DoorStyles,
         {{L"Door 900", Architecture},
          {L"Door 1000", Architecture},
          {L"door 800", Level2},
          {L"Double door 1800", NoTopic},
          {L"Fire door T30", Services},
          {L"Tür 2", Level10}}},
        {EntityCollection::WindowStyles,
         {{L"Window 1200x1500", Facades},
          {L"Window 600x600", Facades},
          {L"window 900x1200", Level2},
          {L"Skylight 2", NoTopic},
          {L"Skylight 10", Level10},
          {L"Fenêtre 3", Architecture}}},
        {EntityCollection::ReinforcementStyles,
         {{L"Rebar 8", Structure},
          {L"Rebar 10", Structure},
          {L"rebar 12", Structure},
          {L"Mesh Q188", Level2},
          {L"Mesh Q257", NoTopic},
          {L"Stirrup 6", Level10}}},
        {EntityCollection::LinkedModels,
         {{L"Site model", NoTopic},
          {L"Structural model 2", NoTopic},
          {L"Structural model 10", NoTopic},
          {L"HVAC model", NoTopic}}},
        {EntityCollection::Images,
         {{L"Logo", NoTopic}, {L"Photo 1", NoTopic}, {L"Photo 12", NoTopic}, {L"photo 3", NoTopic}}},
    };
    return collections;
}

} // namespace

std::unique_ptr<CProject> buildSampleProject()
{
    auto project = std::make_unique<CProject>();
    std::vector<TopicId> topics;
    for (const std::wstring_view name : topicNames)
        topics.push_back(project->addTopic(std::wstring(name)));

    for (const SampleCollection& sample : sampleCollections())
        for (const SampleEntity& entity : sample.entities)
        {
            std::optional<TopicId> topic;
            if (entity.topic != NoTopic)
                topic = topics[entity.topic];
            project->addEntity(sample.collection, std::wstring(entity.name), topic);
        }

    // A few free-form properties for the property editor to show.
    const EntityIdList sheets = project->getEntities(EntityCollection::Sheets);
    project->setEntityProperty(sheets.at(0), "scale", L"1:100");
    project->setEntityProperty(sheets.at(0), "drawnBy", L"Zoë Ångström");
    project->setEntityProperty(sheets.at(1), "scale", L"1:50");
    const EntityIdList materials = project->getEntities(EntityCollection::Materials);
    project->setEntityProperty(materials.at(0), "density", L"2400 kg/m³");
    return project;
}

} // namespace aec::model
