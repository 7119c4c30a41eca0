#include "ExplorerViewFixture.h"

#include "ProjectExplorerLib/ProjectExplorerExports.h"

#include "AecModel/SampleProject.h"

#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <boost/range/algorithm/find_if.hpp>
#include <boost/range/empty.hpp>

namespace project_explorer::test
{

ExplorerViewFixture::ExplorerViewFixture()
    : project(aec::model::buildSampleProject()), groupingModelFactory(createGroupingModelFactory()),
      groupMaker(createGroupMaker(formatter, sessionManager)),
      entityProvider(createProjectExplorerEntityProvider(sessionManager)),
      explorerFactory(createProjectExplorerFactory(*groupingModelFactory, *groupMaker, *entityProvider)),
      eventHandlerFactory(createProjectExplorerGuiEventHandlerFactory()),
      creator(createViewCreator(*explorerFactory, panelProvider, *eventHandlerFactory)),
      hostContext(*project, propertyCatalog)
{
    sessionManager.setCurrentProject(project.get());
    panelProvider.panel = &panel;
}

ExplorerViewFixture::~ExplorerViewFixture()
{
    sessionManager.setCurrentProject(nullptr);
}

std::unique_ptr<aec::INonDrawingView> ExplorerViewFixture::createView()
{
    return creator->createView(panelOwner, hostContext, project->getPreferences(), entityController,
                               translation, sessionManager, project->getObjectEvents(), clipboard);
}

std::unique_ptr<aec::INonDrawingView> ExplorerViewFixture::createBoundView()
{
    auto view = createView();
    view->setClipboardListenerRegistry(&clipboard);
    view->setGui(&gui);
    return view;
}

aec::IProjectExplorer& ExplorerViewFixture::explorer()
{
    EXPECT_NE(panel.explorer, nullptr) << "no explorer is attached to the panel";
    return *panel.explorer;
}

aec::IProjectExplorerGroup& ExplorerViewFixture::group(std::wstring_view name)
{
    aec::GroupRange groups = explorer().getGroups();
    const auto found = boost::find_if(groups, [name](const aec::IProjectExplorerGroup& candidate)
                                      { return candidate.getName() == name; });
    EXPECT_NE(found, groups.end()) << "no group is named so";
    return *found;
}

aec::EntityIdSet ExplorerViewFixture::firstEntities(std::wstring_view groupName, std::size_t count)
{
    const aec::SubgroupRange subgroups = group(groupName).getSubgroups();
    aec::EntityIdSet entities;
    if (boost::empty(subgroups))
    {
        ADD_FAILURE() << "the group has no subgroup";
        return entities;
    }
    for (const aec::EntityId& entity : boost::begin(subgroups)->getEntities())
    {
        if (entities.size() == count)
            break;
        entities.insert(entity);
    }
    EXPECT_EQ(entities.size(), count) << "the group's first subgroup is too small";
    return entities;
}

} // namespace project_explorer::test
