#pragma once

#include <QModelIndex>
#include <Qt>
#include <cstddef>
#include <memory>

namespace aec::desktop
{
class CMainWindow;
} // namespace aec::desktop

namespace benchmarks
{

class CScaleSession;

// The desktop program's main window over a scale session, shown (offscreen) at a size a user
// works at, with confirmations answered yes instead of asked in message boxes. Each action is
// done through Qt's test functions and measured until the event loop has nothing left to do,
// painting included, since that is when the user sees its result.
class CDesktopScaleWindow
{
public:
    explicit CDesktopScaleWindow(CScaleSession& scale);
    ~CDesktopScaleWindow();
    CDesktopScaleWindow(const CDesktopScaleWindow&) = delete;
    CDesktopScaleWindow& operator=(const CDesktopScaleWindow&) = delete;

    // One window per size, made on first use; all die in releaseAll, which runs before the
    // application object does.
    static CDesktopScaleWindow& of(std::size_t entityCount);
    static void releaseAll();

    CScaleSession& scale() noexcept { return scale_; }
    aec::desktop::CMainWindow& window() noexcept { return *window_; }

    // Delivers every pending event and paints what changed.
    void settle();
    // A click on the row, scrolled into view beforehand (not part of the click).
    void scrollTo(const QModelIndex& index);
    void click(const QModelIndex& index, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Makes the row current without selecting it, as a focus move does.
    void makeCurrent(const QModelIndex& index);

    QModelIndex largestGroup() const;
    QModelIndex largestSubgroup() const;
    // The entity at the row of the largest subgroup.
    QModelIndex entity(int row) const;

private:
    CScaleSession& scale_;
    std::unique_ptr<aec::desktop::CMainWindow> window_;
    int largestSubgroupRow_ = 0;
};

} // namespace benchmarks
