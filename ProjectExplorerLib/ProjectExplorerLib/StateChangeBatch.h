#pragma once

#include <cstddef>
#include <functional>

namespace project_explorer
{

// Lets many changes of the explorer's state count as one for whoever writes the state out: while a
// scope of the batch lives, writes wait, and the last scope to end writes once what waited.
//
//     CStateChangeBatch batch([this] { writeState(); });
//     {
//         CStateChangeBatch::CScope scope(batch);
//         unfoldManySubgroups();  // each change calls batch.changed(), which only notes it
//         scope.end();            // writes once; passes a failure of the write on
//     }                           // or, left by an exception: written quietly, else with the next change
class CStateChangeBatch
{
public:
    // `write` writes the whole current state.
    explicit CStateChangeBatch(std::function<void()> write);
    CStateChangeBatch(const CStateChangeBatch&) = delete;
    CStateChangeBatch& operator=(const CStateChangeBatch&) = delete;

    // The state changed: written at once, or noted while a scope lives.
    void changed();
    // Writes what waits, if anything; for the writer's end.
    void flush();
    bool hasPendingWrite() const noexcept { return pending_; }

    class CScope
    {
    public:
        // The batch must outlive the scope.
        [[nodiscard]] explicit CScope(CStateChangeBatch& batch) noexcept;
        // Ends the scope if end() did not: an exception left it. The last scope then writes what
        // waited, swallowing a failure, which leaves the write to the next change or the writer's
        // end: nothing may be thrown during the unwinding.
        ~CScope();
        CScope(const CScope&) = delete;
        CScope& operator=(const CScope&) = delete;

        // The changes are done: the last scope writes what waited; a failure of the write passes on.
        void end();

    private:
        CStateChangeBatch& batch_;
        bool ended_ = false;
    };

private:
    std::function<void()> write_;
    std::size_t openScopes_ = 0;
    bool pending_ = false;
};

} // namespace project_explorer
