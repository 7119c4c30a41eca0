#pragma once

#include "aec/AecApi.h"
#include "aec/ObjectEvents.h"

#include "Common/Observable.h"

#include <memory>

namespace aec
{

class IClipboard;
class IHostContext;
class INonDrawingView;
class IPanelOwner;
class IProjectExplorerEntityController;
class IProjectPreferences;
class IProjectSessionManager;
class ITranslation;

// The source of the project's object events.
using ObjectEventSource = common::CObservable<IObjectEvents>;

// Assembles explorer views.
class AEC_INTERFACE IProjectExplorerViewCreator
{
public:
    virtual ~IProjectExplorerViewCreator() = default;

    // A view over a new explorer of the context's project in a panel made in the owner. Every
    // reference must outlive the view.
    virtual std::unique_ptr<INonDrawingView>
    createView(IPanelOwner& panelOwner, IHostContext& hostContext, IProjectPreferences& preferences,
               IProjectExplorerEntityController& entityController, const ITranslation& translation,
               const IProjectSessionManager& sessionManager, ObjectEventSource& objectEvents,
               const IClipboard& clipboard) const = 0;
};

} // namespace aec
