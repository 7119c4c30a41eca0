#include "ProjectExplorerLib/ChangeTopicContextMenuItems.h"

#include "aec/Project.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/TextIds.h"
#include "aec/Translation.h"

#include "Common/UUID.h"

namespace project_explorer
{

CChangeTopicContextMenuItems::CChangeTopicContextMenuItems(aec::EntityIdList entities,
                                                           aec::IProjectExplorerEntityController& entityController,
                                                           const aec::IProject& topicSource)
    : entities_(std::move(entities)), entityController_(entityController), topicSource_(topicSource)
{
}

CChangeTopicContextMenuItems::~CChangeTopicContextMenuItems() = default;

std::vector<aec::CContextMenuItem> CChangeTopicContextMenuItems::getMenuItems(const aec::ITranslation& translation) const
{
    // The submenu itself only opens its children; it has no command and no fixed identifier.
    aec::CContextMenuItem submenu(translation.getText(aec::text_ids::changeTopic), std::string(), [] {}, true, false,
                                  0);
    for (const aec::CTopic& topic : topicSource_.getTopics())
    {
        aec::CContextMenuItem::Action moveToTopic = [&controller = entityController_, entities = entities_,
                                                     topicId = topic.getId()] {
            controller.changeTopic(entities, topicId);
        };
        submenu.addSubItem(aec::CContextMenuItem(topic.getName(), common::UUID::generate().toString(),
                                                 std::move(moveToTopic), true, false, 0));
    }
    return {std::move(submenu)};
}

std::string CChangeTopicContextMenuItems::getName() const
{
    return "change-topic";
}

} // namespace project_explorer
