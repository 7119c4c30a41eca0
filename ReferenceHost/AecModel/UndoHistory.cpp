#include "AecModel/UndoHistory.h"

#include "AecModel/ChangeApplier.h"
#include "AecModel/TransactionHost.h"

#include "Common/Check.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace aec::model
{

namespace
{

std::vector<std::string> namesFromTop(const std::vector<CUndoStep>& steps)
{
    std::vector<std::string> names;
    names.reserve(steps.size());
    std::transform(steps.rbegin(), steps.rend(), std::back_inserter(names),
                   [](const CUndoStep& step) { return step.name; });
    return names;
}

std::optional<std::string> topName(const std::vector<CUndoStep>& steps)
{
    if (steps.empty())
        return std::nullopt;
    return steps.back().name;
}

ChangeDirection opposite(ChangeDirection direction)
{
    return direction == ChangeDirection::Forward ? ChangeDirection::Backward : ChangeDirection::Forward;
}

} // namespace

CUndoHistory::CUndoHistory(CChangeApplier& applier, const CTransactionHost& transactions)
    : applier_(applier), transactions_(transactions)
{
}

bool CUndoHistory::canUndo() const noexcept
{
    return !undoSteps_.empty() && !transactions_.isOpen();
}

bool CUndoHistory::canRedo() const noexcept
{
    return !redoSteps_.empty() && !transactions_.isOpen();
}

void CUndoHistory::undo()
{
    COMMON_PRECONDITION(canUndo());
    replayTop(undoSteps_, redoSteps_, ChangeDirection::Backward);
}

void CUndoHistory::redo()
{
    COMMON_PRECONDITION(canRedo());
    replayTop(redoSteps_, undoSteps_, ChangeDirection::Forward);
}

std::optional<std::string> CUndoHistory::getUndoName() const
{
    return topName(undoSteps_);
}

std::optional<std::string> CUndoHistory::getRedoName() const
{
    return topName(redoSteps_);
}

std::vector<std::string> CUndoHistory::getUndoNames() const
{
    return namesFromTop(undoSteps_);
}

std::vector<std::string> CUndoHistory::getRedoNames() const
{
    return namesFromTop(redoSteps_);
}

std::vector<CUndoStep> CUndoHistory::push(CUndoStep step)
{
    savedDepthBeforePush_ = savedDepth_;
    // A saved state among the redo steps is lost with them.
    if (savedDepth_ && *savedDepth_ > undoSteps_.size())
        savedDepth_.reset();
    undoSteps_.push_back(std::move(step));
    return std::exchange(redoSteps_, {});
}

CUndoStep CUndoHistory::withdraw(std::vector<CUndoStep> endedRedoSteps)
{
    COMMON_PRECONDITION(!undoSteps_.empty() && redoSteps_.empty());
    CUndoStep step = std::move(undoSteps_.back());
    undoSteps_.pop_back();
    redoSteps_ = std::move(endedRedoSteps);
    savedDepth_ = savedDepthBeforePush_;
    return step;
}

void CUndoHistory::replayTop(std::vector<CUndoStep>& from, std::vector<CUndoStep>& to, ChangeDirection direction)
{
    // Room on the other stack first, so that nothing can fail once the replay has succeeded.
    to.reserve(to.size() + 1);
    // The step is held apart while it replays: an observer may commit a change of its own on
    // hearing of the replay, and that push ends the redo steps.
    CUndoStep step = std::move(from.back());
    from.pop_back();
    try
    {
        applier_.replay(step.changes, direction);
    }
    catch (...)
    {
        // An observer that cannot follow the replay fails it as a whole, as it fails a commit: the
        // step is replayed back and returns to its stack, so that the project and its history are
        // as they were, and the observers hear of that in turn. Should they fail that too, the
        // project is restored all the same, since the observers hear last.
        try
        {
            applier_.replay(step.changes, opposite(direction));
        }
        catch (...)
        {
            from.push_back(std::move(step));
            throw;
        }
        from.push_back(std::move(step));
        throw;
    }
    to.push_back(std::move(step));
}

void CUndoHistory::clear() noexcept
{
    undoSteps_.clear();
    redoSteps_.clear();
    savedDepth_.reset();
}

void CUndoHistory::markSaved() noexcept
{
    savedDepth_ = undoSteps_.size();
}

bool CUndoHistory::isModified() const noexcept
{
    return savedDepth_ != undoSteps_.size();
}

} // namespace aec::model
