#include "ReplayActions.h"

#include "AecModel/UndoHistory.h"
#include "SessionUnderFaults.h"

namespace aec::fault_injection::test
{

namespace
{

void undo(CSessionUnderFaults& world)
{
    world.session.getUndoHistory().undo();
}

void redo(CSessionUnderFaults& world)
{
    world.session.getUndoHistory().redo();
}

std::vector<UserAction> makeReplayActions()
{
    std::vector<UserAction> replays;
    for (const UserAction& action : userActions())
    {
        if (!action.changesProject)
            continue;
        replays.push_back({"undo " + action.name,
                           [action](CSessionUnderFaults& world)
                           {
                               action.prepare(world);
                               action.perform(world);
                           },
                           undo, true});
        replays.push_back({"redo " + action.name,
                           [action](CSessionUnderFaults& world)
                           {
                               action.prepare(world);
                               action.perform(world);
                               undo(world);
                           },
                           redo, true});
    }
    return replays;
}

} // namespace

const std::vector<UserAction>& replayActions()
{
    static const std::vector<UserAction> replays = makeReplayActions();
    return replays;
}

} // namespace aec::fault_injection::test
