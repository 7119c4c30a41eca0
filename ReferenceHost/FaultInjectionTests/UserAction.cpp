#include "UserAction.h"

#include "Common/Exception.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/Gui.h"
#include "HostServices/HostServices.h"
#include "SessionUnderFaults.h"
#include "aec/Commands.h"
#include "aec/EntityTypes.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/TextIds.h"

#include <boost/signals2/connection.hpp>
#include <filesystem>
#include <fstream>
#include <optional>
#include <unistd.h>

namespace aec::fault_injection::test
{

namespace
{

// A table file to import, written once and removed when the tests end.
class CTableFile
{
public:
    CTableFile()
        : path_(std::filesystem::temp_directory_path() /
                ("fault-injection-doors-" + std::to_string(::getpid()) + ".csv"))
    {
        std::ofstream(path_) << "Mark,Width,Height\nD1,900,2100\nD2,1000,2100\n";
    }
    ~CTableFile() { std::filesystem::remove(path_); }
    CTableFile(const CTableFile&) = delete;
    CTableFile& operator=(const CTableFile&) = delete;

    const std::filesystem::path& path() const noexcept { return path_; }

private:
    std::filesystem::path path_;
};

const std::filesystem::path& tableFile()
{
    static const CTableFile file;
    return file.path();
}

std::wstring text(CSessionUnderFaults& world, int textId)
{
    return world.session.getHostServices().getTranslation().getText(textId);
}

UserAction createAction(std::string name, EntityTypeId type)
{
    return {std::move(name), [](CSessionUnderFaults&) {},
            [type](CSessionUnderFaults& world)
            {
                EntityId created;
                world.session.getEntityController().createEntity(type, created);
            },
            true};
}

// Rename from the context menu: the menu asks the panel to rename in place, and the host program
// passes on the name the user types.
void renameFromContextMenu(CSessionUnderFaults& world, const std::wstring& newName)
{
    std::optional<EntityId> requested;
    const boost::signals2::scoped_connection connection =
        world.session.getPanel().renameRequestedSignal().connect([&requested](const EntityId& entity)
                                                                 { requested = entity; });
    world.chooseFromContextMenu(text(world, text_ids::rename));
    if (!requested)
        throw common::EException("The panel was not asked to rename the entity");
    world.session.getEntityController().renameEntity(*requested, newName);
}

void runCommand(CSessionUnderFaults& world, int command)
{
    world.session.getGui().runCommand(command);
}

void confirmNextQuestion(CSessionUnderFaults& world)
{
    world.session.getHostServices().getDialogService().queueAnswer(DialogAnswer::Yes);
}

} // namespace

void PrintTo(const UserAction& action, std::ostream* stream)
{
    *stream << '"' << action.name << '"';
}

const std::vector<UserAction>& userActions()
{
    static const std::vector<UserAction> actions{
        createAction("create a sheet", entity_types::sheet()),
        createAction("create a table", entity_types::table()),
        createAction("create an assembly", entity_types::assembly()),
        createAction("create a material", entity_types::material()),
        {"rename a sheet from the context menu",
         [](CSessionUnderFaults& world)
         { world.select({world.entityNamed(EntityCollection::Sheets, L"Sheet A-20")}); },
         [](CSessionUnderFaults& world) { renameFromContextMenu(world, L"Sheet A-21"); }, true},
        {"rename a door style from the context menu",
         [](CSessionUnderFaults& world)
         { world.select({world.entityNamed(EntityCollection::DoorStyles, L"Door 900")}); },
         [](CSessionUnderFaults& world) { renameFromContextMenu(world, L"Door 910"); }, true},
        {"delete two sheets with the delete command",
         [](CSessionUnderFaults& world)
         {
             world.select({world.entityNamed(EntityCollection::Sheets, L"Sheet A-101"),
                           world.entityNamed(EntityCollection::Sheets, L"Sheet S-1")});
             confirmNextQuestion(world);
         },
         [](CSessionUnderFaults& world) { runCommand(world, commands::deleteSelection); }, true},
        {"delete a table from the context menu",
         [](CSessionUnderFaults& world)
         {
             world.select({world.entityNamed(EntityCollection::Tables, L"Door schedule")});
             confirmNextQuestion(world);
         },
         [](CSessionUnderFaults& world) { world.chooseFromContextMenu(text(world, text_ids::deleteItem)); },
         true},
        {"cut a sheet and a material",
         [](CSessionUnderFaults& world)
         {
             world.select({world.entityNamed(EntityCollection::Sheets, L"Sheet S-2"),
                           world.entityNamed(EntityCollection::Materials, L"Brick 240")});
         },
         [](CSessionUnderFaults& world) { runCommand(world, commands::cut); }, true},
        {"copy a sheet and a topic",
         [](CSessionUnderFaults& world)
         {
             world.select({world.entityNamed(EntityCollection::Sheets, L"Sheet M-5"),
                           world.entityNamed(EntityCollection::Topics, L"Structure")});
         },
         [](CSessionUnderFaults& world) { runCommand(world, commands::copy); }, false},
        {"paste a sheet, a material and a topic",
         [](CSessionUnderFaults& world)
         {
             world.select({world.entityNamed(EntityCollection::Sheets, L"Sheet A-3"),
                           world.entityNamed(EntityCollection::Materials, L"Glass 8mm"),
                           world.entityNamed(EntityCollection::Topics, L"Façades")});
             runCommand(world, commands::copy);
         },
         [](CSessionUnderFaults& world) { runCommand(world, commands::paste); }, true},
        {"import a table",
         [](CSessionUnderFaults& world)
         { world.session.getHostServices().getImportFileDialog().queueAnswer(tableFile().wstring()); },
         [](CSessionUnderFaults& world) { runCommand(world, commands::importTable); }, true},
        {"change the topic of a sheet and a door style from the context menu",
         [](CSessionUnderFaults& world)
         {
             world.select({world.entityNamed(EntityCollection::Sheets, L"Sheet A-20"),
                           world.entityNamed(EntityCollection::DoorStyles, L"Door 1000")});
         },
         [](CSessionUnderFaults& world)
         { world.chooseFromContextMenu(text(world, text_ids::changeTopic), L"MEP services"); },
         true},
    };
    return actions;
}

} // namespace aec::fault_injection::test
