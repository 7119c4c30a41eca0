#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/UndoStep.h"

#include <optional>
#include <string>
#include <vector>

namespace aec::model
{

class CChangeApplier;
class CTransactionHost;

// The project's undo and redo stacks of committed transactions. Undo and redo replay a whole step
// and notify the project's observers once; neither may run while a transaction is open, since the
// open transaction's journal would no longer describe the way back.
//
// Like a commit, a replay is whole or nothing: when an observer fails to follow it, the step is
// replayed back and stays on its stack, and the observer's failure reaches the caller.
class AECMODEL_API CUndoHistory
{
public:
    CUndoHistory(CChangeApplier& applier, const CTransactionHost& transactions);
    CUndoHistory(const CUndoHistory&) = delete;
    CUndoHistory& operator=(const CUndoHistory&) = delete;

    bool canUndo() const noexcept;
    bool canRedo() const noexcept;
    // Both require canUndo() and canRedo() respectively.
    void undo();
    void redo();

    // The name of the step that undo or redo would replay, or nothing.
    std::optional<std::string> getUndoName() const;
    std::optional<std::string> getRedoName() const;
    // All step names, the next one to replay first.
    std::vector<std::string> getUndoNames() const;
    std::vector<std::string> getRedoNames() const;

    // A newly committed step; it ends every redo. Returns the redo steps it ended, for withdraw.
    std::vector<CUndoStep> push(CUndoStep step);
    // Takes the step pushed last off again and brings back the redo steps that its push ended: for
    // a commit that failed after it recorded its step.
    CUndoStep withdraw(std::vector<CUndoStep> endedRedoSteps);
    // Forgets every step: the project changed outside of transactions, so no step fits any more.
    void clear() noexcept;

private:
    // Replays the top step of one stack and moves it onto the other, or leaves both as they were.
    void replayTop(std::vector<CUndoStep>& from, std::vector<CUndoStep>& to, ChangeDirection direction);

    CChangeApplier& applier_;
    const CTransactionHost& transactions_;
    std::vector<CUndoStep> undoSteps_;
    std::vector<CUndoStep> redoSteps_;
};

} // namespace aec::model
