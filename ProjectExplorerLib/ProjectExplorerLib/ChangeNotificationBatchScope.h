#pragma once

namespace aec
{
class IChangeNotificationBatch;
} // namespace aec

namespace project_explorer
{

// Holds the project's change-notification batch open while a bulk change runs, so that observers
// hear of the whole change once. The batch is closed also when the change fails, before the
// enclosing transaction rolls back, so that no batch is left open behind a failed operation.
class CChangeNotificationBatchScope final
{
public:
    // Opens the batch, which must outlive the scope.
    [[nodiscard]] explicit CChangeNotificationBatchScope(aec::IChangeNotificationBatch& batch);
    ~CChangeNotificationBatchScope();
    CChangeNotificationBatchScope(const CChangeNotificationBatchScope&) = delete;
    CChangeNotificationBatchScope& operator=(const CChangeNotificationBatchScope&) = delete;

    // Closes the batch, passing on what its observers throw. At most once.
    void close();

private:
    aec::IChangeNotificationBatch& batch_;
    bool open_;
};

} // namespace project_explorer
