#include "DesktopScaleWindow.h"

#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerTreeView.h"
#include "ExplorerDesktop/MainWindow.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostServices/HostServices.h"
#include "ScaleSession.h"

#include <QApplication>
#include <QTest>
#include <map>
#include <stdexcept>

namespace benchmarks
{

namespace
{

std::map<std::size_t, std::unique_ptr<CDesktopScaleWindow>>& windows()
{
    static std::map<std::size_t, std::unique_ptr<CDesktopScaleWindow>> all;
    return all;
}

} // namespace

CDesktopScaleWindow::CDesktopScaleWindow(CScaleSession& scale)
    : scale_(scale), window_(std::make_unique<aec::desktop::CMainWindow>(scale.session()))
{
    // The window asks in message boxes, which would wait for a user; the session answers yes.
    scale_.session().getHostServices().getDialogService().setAskCallback(nullptr);
    largestSubgroupRow_ = scale_.largestSubgroupIndex();
    // Its rows are the ones clicked: the largest subgroup is where a click costs the most.
    if (!window_->getModel().isExpanded(largestSubgroup()))
        scale_.session().getPanel().toggleSubgroup(scale_.largestGroupIndex(), largestSubgroupRow_);
    window_->resize(1400, 1000);
    window_->show();
    if (!QTest::qWaitForWindowExposed(window_.get()))
        throw std::runtime_error("the desktop window did not show");
    settle();
}

CDesktopScaleWindow::~CDesktopScaleWindow() = default;

CDesktopScaleWindow& CDesktopScaleWindow::of(std::size_t entityCount)
{
    std::unique_ptr<CDesktopScaleWindow>& window = windows()[entityCount];
    if (window == nullptr)
        window = std::make_unique<CDesktopScaleWindow>(CScaleSession::of(entityCount));
    return *window;
}

void CDesktopScaleWindow::releaseAll()
{
    windows().clear();
}

void CDesktopScaleWindow::settle()
{
    // Posted events may post more (a layout after a model change, then its paint); a few rounds
    // deliver them all, and repaint paints the tree at once rather than on the next frame.
    for (int round = 0; round < 3; ++round)
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
    window_->getTreeView().viewport()->repaint();
}

void CDesktopScaleWindow::scrollTo(const QModelIndex& index)
{
    window_->getTreeView().scrollTo(index);
    settle();
}

void CDesktopScaleWindow::click(const QModelIndex& index, Qt::KeyboardModifiers modifiers)
{
    aec::desktop::CExplorerTreeView& tree = window_->getTreeView();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, modifiers, tree.visualRect(index).center());
    settle();
}

void CDesktopScaleWindow::key(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&window_->getTreeView(), static_cast<Qt::Key>(key), modifiers);
    settle();
}

void CDesktopScaleWindow::makeCurrent(const QModelIndex& index)
{
    window_->getTreeView().selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    settle();
}

QModelIndex CDesktopScaleWindow::largestGroup() const
{
    return window_->getModel().index(scale_.largestGroupIndex(), 0);
}

QModelIndex CDesktopScaleWindow::largestSubgroup() const
{
    return window_->getModel().index(largestSubgroupRow_, 0, largestGroup());
}

QModelIndex CDesktopScaleWindow::entity(int row) const
{
    return window_->getModel().index(row, 0, largestSubgroup());
}

} // namespace benchmarks
