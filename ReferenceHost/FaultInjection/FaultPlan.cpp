#include "FaultInjection/FaultPlan.h"

#include "Common/Check.h"
#include "Common/Exception.h"

#include <fmt/format.h>
#include <new>

namespace aec::fault_injection
{

void CFaultPlan::count()
{
    counting_ = true;
    failingPoint_.reset();
    laterFailingPoint_.reset();
    reachedSites_.clear();
    failedSite_.reset();
    laterFailedSite_.reset();
}

void CFaultPlan::failAt(std::size_t point, Fault fault)
{
    COMMON_PRECONDITION(point >= 1);
    count();
    failingPoint_ = point;
    fault_ = fault;
}

void CFaultPlan::alsoFailAt(std::size_t laterPoint)
{
    COMMON_PRECONDITION(failingPoint_ && laterPoint > *failingPoint_);
    laterFailingPoint_ = laterPoint;
}

void CFaultPlan::stop() noexcept
{
    counting_ = false;
    failingPoint_.reset();
    laterFailingPoint_.reset();
}

void CFaultPlan::reach(std::string_view site)
{
    if (!counting_)
        return;
    reachedSites_.push_back(site);
    if (reachedSites_.size() == laterFailingPoint_)
        laterFailedSite_ = site;
    else if (reachedSites_.size() == failingPoint_)
        failedSite_ = site;
    else
        return;
    if (fault_ == Fault::OutOfMemory)
        throw std::bad_alloc();
    throw common::EException(
        fmt::format("{} failed (injected fault at point {})", site, reachedSites_.size()));
}

const std::vector<std::string_view>& CFaultPlan::getReachedSites() const noexcept
{
    return reachedSites_;
}

std::optional<std::string_view> CFaultPlan::getFailedSite() const noexcept
{
    return failedSite_;
}

std::optional<std::string_view> CFaultPlan::getLaterFailedSite() const noexcept
{
    return laterFailedSite_;
}

} // namespace aec::fault_injection
