#include "HostFrame/CurrentTopicItem.h"

#include "AecModel/Project.h"
#include "HostFrame/ExplorerSession.h"
#include "HostServices/HostServices.h"
#include "aec/TextIds.h"

#include <algorithm>

namespace aec::host
{

std::optional<std::pair<std::size_t, std::size_t>>
currentTopicItem(CExplorerSession& session, const std::vector<CContextMenuItem>& items)
{
    if (!session.hasProject() || session.getSelection().empty())
        return std::nullopt;
    const std::wstring submenuText =
        session.getHostServices().getTranslation().getText(text_ids::changeTopic);
    const auto submenu =
        std::ranges::find_if(items, [&submenuText](const CContextMenuItem& item)
                             { return !item.isSeparator() && item.getText() == submenuText; });
    if (submenu == items.end())
        return std::nullopt;

    const model::CProject& project = session.getProject();
    std::optional<std::optional<TopicId>> common;
    for (const EntityId& id : session.getSelection())
    {
        const model::CEntity* const entity = project.findEntity(id);
        if (entity == nullptr)
            return std::nullopt;
        if (common && *common != entity->getTopic())
            return std::nullopt;
        common = entity->getTopic();
    }
    if (!common)
        return std::nullopt;
    // The choice of no topic has the nil identifier.
    const TopicId current = common->value_or(TopicId());
    const std::vector<CTopic> choices = project.getTopics();
    if (choices.size() != submenu->getSubItems().size())
        return std::nullopt;
    const auto choice = std::ranges::find(choices, current, &CTopic::getId);
    if (choice == choices.end())
        return std::nullopt;
    return std::pair{static_cast<std::size_t>(submenu - items.begin()),
                     static_cast<std::size_t>(choice - choices.begin())};
}

} // namespace aec::host
