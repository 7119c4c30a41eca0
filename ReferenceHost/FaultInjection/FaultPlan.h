#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace aec::fault_injection
{

// Decides which call of the host's services fails. The services' decorators report each fault
// point they reach, in the order the library reaches them: one before each call, and for the calls
// that change the project inside an open transaction one more after the call's work, so that a
// failure may also come from a service that has done part of its work.
//
// While idle the plan lets every point pass uncounted. A counting run numbers the points from 1
// and remembers their sites; a failing run numbers them alike and fails the chosen one.
class CFaultPlan
{
public:
    enum class Fault
    {
        // The service reports a failure: common::EException, as the host's services do.
        HostError,
        // The service runs out of memory: std::bad_alloc.
        OutOfMemory,
    };

    // Numbers the points reached from now on and fails none of them.
    void count();
    // Numbers the points reached from now on and fails the one with the number (from 1).
    void failAt(std::size_t point, Fault fault);
    // After failAt: fails a later point of the same run too, alike, such as one reached while the
    // library takes back what it did before the first failure.
    void alsoFailAt(std::size_t laterPoint);
    // Lets the points reached from now on pass uncounted; what was counted stays readable.
    void stop() noexcept;

    // For the decorators: a point of the site (a static text) is reached; throws the chosen fault
    // when this is the point to fail.
    void reach(std::string_view site);

    // The sites of the points counted since the last count() or failAt(), in order.
    const std::vector<std::string_view>& getReachedSites() const noexcept;
    // The site whose point failed first since the last failAt(), if one did.
    std::optional<std::string_view> getFailedSite() const noexcept;
    // The site of the later point of alsoFailAt(), if it was reached.
    std::optional<std::string_view> getLaterFailedSite() const noexcept;

private:
    bool counting_ = false;
    std::optional<std::size_t> failingPoint_;
    std::optional<std::size_t> laterFailingPoint_;
    Fault fault_ = Fault::HostError;
    std::vector<std::string_view> reachedSites_;
    std::optional<std::string_view> failedSite_;
    std::optional<std::string_view> laterFailedSite_;
};

} // namespace aec::fault_injection
