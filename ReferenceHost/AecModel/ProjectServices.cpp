#include "AecModel/ProjectServices.h"

#include "AecModel/Project.h"

#include "aec/ProjectExplorerEntityControllerFactory.h"

namespace aec::model
{

CProjectServices::CProjectServices(CProject& project)
    : project_(project), classifier_(project), entitySource_(project), copyDataBuilder_(project),
      sheetHandler_(project, EntityCollection::Sheets), tableHandler_(project, EntityCollection::Tables),
      assemblyHandler_(project, EntityCollection::Assemblies), materialHandler_(project, EntityCollection::Materials)
{
}

CProjectServices::~CProjectServices() = default;

std::unique_ptr<IProjectExplorerEntityController>
CProjectServices::createController(const IProjectExplorerEntityControllerFactory& factory)
{
    return factory.createController(classifier_, entitySource_, copyDataBuilder_, sheetHandler_, tableHandler_,
                                    assemblyHandler_, materialHandler_, operationGuardSource_, pasteHandler_);
}

} // namespace aec::model
