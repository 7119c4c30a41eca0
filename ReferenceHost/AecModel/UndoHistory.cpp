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
    CUndoStep step = std::move(from.back());
    from.pop_back();
    applier_.replay(step.changes, direction);
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
