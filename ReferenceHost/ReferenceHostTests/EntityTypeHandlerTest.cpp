#include "AecModel/EntityTypeHandler.h"
#include "AecModel/Project.h"

#include "aec/EntityTypes.h"

#include "Common/AssertionViolation.h"
#include "Common/Exception.h"
#include "Common/UUID.h"

#include <gtest/gtest.h>

#include <string>

namespace aec::model
{
namespace
{

EntityId freshId()
{
    return EntityId(common::UUID::generate());
}

TEST(EntityTypeHandlerTest, NewEntitiesTakeTheFirstFreeNumberedName)
{
    CProject project;
    CEntityTypeHandler sheets(project, EntityCollection::Sheets);
    CEntityTypeHandler doorStyles(project, EntityCollection::DoorStyles);
    project.addEntity(EntityCollection::Sheets, L"Sheet 2");
    project.addEntity(EntityCollection::Sheets, L"sheet 03"); // the same name in natural order
    project.addEntity(EntityCollection::Tables, L"Sheet 1"); // another collection

    const EntityId first = freshId();
    const EntityId second = freshId();
    sheets.create(first);
    sheets.create(second);
    EXPECT_EQ(project.findEntity(first)->getName(), L"Sheet 1");
    EXPECT_EQ(project.findEntity(second)->getName(), L"Sheet 4");

    sheets.remove(first);
    EXPECT_EQ(project.findEntity(first), nullptr);
    const EntityId reused = freshId();
    sheets.create(reused);
    EXPECT_EQ(project.findEntity(reused)->getName(), L"Sheet 1");

    const EntityId door = freshId();
    doorStyles.create(door);
    EXPECT_EQ(project.findEntity(door)->getName(), L"Door style 1");
    EXPECT_EQ(project.findEntity(door)->getType(), entity_types::doorStyle());
    EXPECT_EQ(doorStyles.getEntityType(), entity_types::doorStyle());
}

TEST(EntityTypeHandlerTest, RenameRefusesBlankNamesAndNamesOfOtherEntities)
{
    CProject project;
    CEntityTypeHandler materials(project, EntityCollection::Materials);
    const EntityId oak = project.addEntity(EntityCollection::Materials, L"Oak");
    project.addEntity(EntityCollection::Materials, L"Beech");
    const EntityId table = project.addEntity(EntityCollection::Tables, L"Pine");
    const std::string before = project.canonicalDump();

    const auto refusalOf = [](CEntityTypeHandler& handler, const EntityId& id,
                              const std::wstring& name) -> std::string
    {
        try
        {
            handler.rename(id, name);
        }
        catch (const common::EException& error)
        {
            return error.what();
        }
        return "accepted";
    };
    const auto refusal = [&](const std::wstring& name)
    {
        return refusalOf(materials, oak, name);
    };
    EXPECT_EQ(refusal(L"Beech"), "There is already a material named \"Beech\"; choose another name.");
    // One name to the user is one name: case and leading zeros do not tell names apart, and the
    // message names the material that has it, as it is spelled.
    EXPECT_EQ(refusal(L" bEECH "), "There is already a material named \"Beech\"; choose another name.");
    for (const std::wstring blank : {L"", L" \t", L"\u200B\u00A0", L"\x01\x02", L"\u202A\u00AD\u2064\uFEFF"})
        EXPECT_NE(refusal(blank).find("A material needs a name"), std::string::npos);
    EXPECT_NE(refusal(L"Oak\nfloor").find("control character"), std::string::npos);
    EXPECT_EQ(project.canonicalDump(), before);

    EXPECT_EQ(refusal(L"Oak"), "accepted");
    EXPECT_EQ(project.canonicalDump(), before);
    EXPECT_EQ(refusal(L"Pine"), "accepted"); // a table's name is no material's
    EXPECT_EQ(refusal(L"pine"), "accepted");
    EXPECT_EQ(project.findEntity(oak)->getName(), L"pine");
    EXPECT_EQ(project.findEntity(table)->getName(), L"Pine");
    EXPECT_EQ(refusal(L"\u3000 Pine 02\t"), "accepted");
    EXPECT_EQ(project.findEntity(oak)->getName(), L"Pine 02");
    project.addEntity(EntityCollection::Materials, L"Pine 3");
    EXPECT_NE(refusal(L"pine 003").find("\"Pine 3\""), std::string::npos);

    CEntityTypeHandler assemblies(project, EntityCollection::Assemblies);
    const EntityId stair = project.addEntity(EntityCollection::Assemblies, L"Stair");
    project.addEntity(EntityCollection::Assemblies, L"Ramp");
    EXPECT_EQ(refusalOf(assemblies, stair, L"Ramp"),
              "There is already an assembly named \"Ramp\"; choose another name.");
    EXPECT_EQ(refusalOf(assemblies, stair, L""),
              "An assembly needs a name with at least one visible character.");
}

TEST(EntityTypeHandlerTest, EntitiesOfAnotherCollectionAreAContractViolation)
{
    CProject project;
    CEntityTypeHandler sheets(project, EntityCollection::Sheets);
    const EntityId table = project.addEntity(EntityCollection::Tables, L"Doors");

    const auto site = [](auto&& call) -> std::string
    {
        try
        {
            call();
        }
        catch (const common::EPreconditionViolation& violation)
        {
            return violation.what();
        }
        return {};
    };
    const std::string removeSite = site([&] { sheets.remove(table); });
    const std::string renameSite = site([&] { sheets.rename(table, L"Windows"); });
    const std::string nullSite = site([&] { sheets.create(EntityId()); });
    for (const std::string& found : {removeSite, renameSite, nullSite})
        EXPECT_NE(found.find("ReferenceHost/AecModel/EntityTypeHandler.cpp"), std::string::npos) << found;
    EXPECT_EQ(removeSite, renameSite); // both fail the one membership check
    EXPECT_NE(removeSite, nullSite);
    EXPECT_EQ(project.findEntity(table)->getName(), L"Doors");
}

} // namespace
} // namespace aec::model
