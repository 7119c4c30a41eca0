#include "AecModel/TransactionHost.h"

#include "AecModel/ChangeApplier.h"
#include "AecModel/ChangeNotifier.h"
#include "AecModel/Transaction.h"
#include "AecModel/UndoHistory.h"

#include "Common/Check.h"

#include <algorithm>
#include <iterator>

namespace aec::model
{

CTransactionHost::CTransactionHost(CChangeApplier& applier, CChangeNotifier& notifier, CUndoHistory& history)
    : applier_(applier), notifier_(notifier), history_(history)
{
}

CTransactionHost::~CTransactionHost() = default;

std::unique_ptr<ITransaction> CTransactionHost::openTransaction(const std::string& name)
{
    const std::uint64_t serial = nextSerial_++;
    // Made first: should opening fail, its destruction finds no level of its own to roll back.
    auto transaction = std::make_unique<CTransaction>(*this, serial);
    levels_.push_back(Level{name, journal_.size(), serial});
    return transaction;
}

const ModelChange& CTransactionHost::record(ModelChange change)
{
    COMMON_PRECONDITION(isOpen());
    return journal_.emplace_back(std::move(change));
}

void CTransactionHost::discardLast()
{
    COMMON_PRECONDITION(isOpen() && journal_.size() > levels_.back().journalStart);
    journal_.pop_back();
}

void CTransactionHost::commit(std::uint64_t serial)
{
    COMMON_PRECONDITION(isOpen() && levels_.back().serial == serial);
    std::string name = std::move(levels_.back().name);
    levels_.pop_back();
    if (isOpen())
        return;
    std::vector<ModelChange> changes = std::move(journal_);
    journal_.clear();
    if (changes.empty())
    {
        notifier_.flushUnlessBatched();
        return;
    }
    std::vector<CUndoStep> endedRedoSteps = history_.push(CUndoStep{std::move(name), std::move(changes)});
    try
    {
        notifier_.flushUnlessBatched();
    }
    catch (...)
    {
        // An observer that cannot follow the change fails the commit. The change is taken back, so
        // that the project and its history are as they were before the transaction, and the
        // observers hear of that in turn.
        const CUndoStep step = history_.withdraw(std::move(endedRedoSteps));
        applier_.replay(step.changes, ChangeDirection::Backward);
        throw;
    }
}

void CTransactionHost::rollBack(std::uint64_t serial)
{
    const auto level = std::find_if(levels_.begin(), levels_.end(),
                                    [serial](const Level& open) { return open.serial == serial; });
    if (level == levels_.end())
        return;
    const auto start = journal_.begin() + static_cast<std::ptrdiff_t>(level->journalStart);
    levels_.erase(level, levels_.end());
    std::vector<ModelChange> undone(std::make_move_iterator(start), std::make_move_iterator(journal_.end()));
    journal_.erase(start, journal_.end());
    applier_.replay(undone, ChangeDirection::Backward);
}

} // namespace aec::model
