#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/CopyDataBuilder.h"
#include "AecModel/EntityClassifier.h"
#include "AecModel/EntitySource.h"
#include "AecModel/EntityTypeHandler.h"
#include "AecModel/OperationGuardSource.h"
#include "AecModel/PasteHandler.h"

namespace aec::model
{

class CProject;

// The per-project services that an entity controller is made from (the host frame's project binding
// hands them to the library's controller factory), for one project that outlives
// them: classifier, entity source, copy-data builder, the type handlers of the four handled types
// (sheets, tables, assemblies, materials, in that order), the operation guard source and the paste
// handler.
class AECMODEL_API CProjectServices
{
public:
    explicit CProjectServices(CProject& project);
    ~CProjectServices();
    CProjectServices(const CProjectServices&) = delete;
    CProjectServices& operator=(const CProjectServices&) = delete;

    CProject& getProject() noexcept { return project_; }
    const CEntityClassifier& getClassifier() const noexcept { return classifier_; }
    const CEntitySource& getEntitySource() const noexcept { return entitySource_; }
    const CCopyDataBuilder& getCopyDataBuilder() const noexcept { return copyDataBuilder_; }
    CEntityTypeHandler& getSheetHandler() noexcept { return sheetHandler_; }
    CEntityTypeHandler& getTableHandler() noexcept { return tableHandler_; }
    CEntityTypeHandler& getAssemblyHandler() noexcept { return assemblyHandler_; }
    CEntityTypeHandler& getMaterialHandler() noexcept { return materialHandler_; }
    const COperationGuardSource& getOperationGuardSource() const noexcept { return operationGuardSource_; }
    CPasteHandler& getPasteHandler() noexcept { return pasteHandler_; }

private:
    CProject& project_;
    CEntityClassifier classifier_;
    CEntitySource entitySource_;
    CCopyDataBuilder copyDataBuilder_;
    CEntityTypeHandler sheetHandler_;
    CEntityTypeHandler tableHandler_;
    CEntityTypeHandler assemblyHandler_;
    CEntityTypeHandler materialHandler_;
    COperationGuardSource operationGuardSource_;
    CPasteHandler pasteHandler_;
};

} // namespace aec::model
