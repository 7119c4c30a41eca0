#pragma once

namespace aec
{
class ICopyDataBuilder;
class IEntityClassifier;
class IEntitySource;
class IEntityTypeHandler;
class IHostContext;
class IOperationGuardSource;
class IPasteHandler;
class IProjectPreferences;
} // namespace aec

namespace aec::host
{

// The services of one open project that a session hands the explorer library: the nine that the
// entity controller is made from, in the factory's order (the type handlers of sheets, tables,
// assemblies and materials), the preferences that keep the explorer's state, and the host context
// that the explorer is made in.
struct ProjectServiceSet
{
    const IEntityClassifier& classifier;
    const IEntitySource& entitySource;
    const ICopyDataBuilder& copyDataBuilder;
    IEntityTypeHandler& sheetHandler;
    IEntityTypeHandler& tableHandler;
    IEntityTypeHandler& assemblyHandler;
    IEntityTypeHandler& materialHandler;
    const IOperationGuardSource& operationGuardSource;
    IPasteHandler& pasteHandler;
    IProjectPreferences& preferences;
    IHostContext& hostContext;
};

} // namespace aec::host
