#include "AecModel/ProjectServices.h"

#include "AecModel/Project.h"

namespace aec::model
{

CProjectServices::CProjectServices(CProject& project)
    : project_(project), classifier_(project), entitySource_(project), copyDataBuilder_(project),
      sheetHandler_(project, EntityCollection::Sheets), tableHandler_(project, EntityCollection::Tables),
      assemblyHandler_(project, EntityCollection::Assemblies),
      materialHandler_(project, EntityCollection::Materials)
{
}

CProjectServices::~CProjectServices() = default;

} // namespace aec::model
