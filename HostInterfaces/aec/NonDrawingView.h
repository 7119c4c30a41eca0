#pragma once

#include "aec/UserInputSource.h"

#include <memory>

namespace aec
{

class IActivity;
class IClipboardListenerRegistry;
class IGui;
class IStatusService;

// A view of the host that owns no graphics of its own but binds a panel to the host's user interface.
class AEC_INTERFACE INonDrawingView : public IUserInputSource
{
public:
    // Binds the view to the host's main user interface; once only.
    virtual void setGui(IGui* gui) = 0;
    // Sets the status service that the view's activities report to.
    virtual void setStatusService(IStatusService* statusService) = 0;
    // The view's place in the host window changed; an explorer view has no layout of its own.
    virtual void setLayoutHint(int width, int height) = 0;
    // Sets where the view's activities follow the clipboard.
    virtual void setClipboardListenerRegistry(IClipboardListenerRegistry* registry) = 0;
    // A new activity that binds the host's commands to the view; the caller owns it.
    virtual std::unique_ptr<IActivity> createActivity() = 0;
    // The view became the active one.
    virtual void onViewActivated() = 0;
    // The view stopped being the active one.
    virtual void onViewDeactivated() = 0;
    // Whether the view shows a drawing.
    virtual bool hasDrawing() const = 0;
    // Whether the view has unsaved changes of its own.
    virtual bool isModified() const = 0;
    // Whether the view can be printed.
    virtual bool canPrint() const = 0;
    // Prints the view.
    virtual void print() = 0;
};

} // namespace aec
