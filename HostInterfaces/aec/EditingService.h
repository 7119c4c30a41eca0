#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

#include <memory>

namespace aec
{

class IEditCommand;

// The project's own editing service: direct attribute edits that the project records itself.
class AEC_INTERFACE IEditingService
{
public:
    virtual ~IEditingService() = default;

    // Opens an edit; commands are submitted inside it.
    virtual void beginEdit() = 0;
    // A command that edits one entity.
    virtual std::unique_ptr<IEditCommand> createCommand(const EntityId& entity) = 0;
    // Applies the command.
    virtual void submit(IEditCommand& command) = 0;
    // Closes the edit; with success false the edit's changes are undone. The edit is closed also
    // when this throws, and then its changes are undone.
    virtual void endEdit(bool success) = 0;
};

} // namespace aec
