#pragma once

#include <memory>
#include <string>

namespace aec
{
class IOperationGuard;
class IOperationGuardSource;
class IProject;
class ITransaction;
} // namespace aec

namespace project_explorer
{

// One model-changing operation: the project's operation guard, then a named transaction inside
// it. Destroyed without commit, the transaction rolls the project back first and the guard ends
// after it, so a failed operation leaves the project as it was and free for the next one.
//
// @code
//   CProjectOperation operation(project, guardSource, "Remove entities from project explorer");
//   {
//       CChangeNotificationBatchScope batch(project.getChangeNotificationBatch());
//       handler.remove(id);   // observers hear of every removal once, at the close
//       batch.close();        // passes on what the observers throw
//   }
//   operation.commit();       // one undo step; a throw before this rolls everything back
// @endcode
class CProjectOperation final
{
public:
    // Throws what the guard source throws when no operation may start now; the project and the
    // source must outlive the operation.
    [[nodiscard]] CProjectOperation(aec::IProject& project, const aec::IOperationGuardSource& guardSource,
                                    const std::string& name);
    ~CProjectOperation();
    CProjectOperation(const CProjectOperation&) = delete;
    CProjectOperation& operator=(const CProjectOperation&) = delete;

    // Makes the changes one undo step, then ends the guard. At most once.
    void commit();

private:
    std::unique_ptr<aec::IOperationGuard> guard_;
    std::unique_ptr<aec::ITransaction> transaction_;
};

} // namespace project_explorer
