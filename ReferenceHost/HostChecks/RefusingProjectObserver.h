#pragma once

#include "aec/ObjectEvents.h"

#include <string>

namespace aec::model
{
class CProject;
} // namespace aec::model

namespace aec::host
{

// An observer of the project besides the explorer (a drawing, another panel) that cannot follow
// any change: it throws common::EException with its reason each time it hears of one. For tests of
// what the host programs do when a change, an undo or a redo fails as a whole.
class CRefusingProjectObserver final : public IObjectEvents
{
public:
    // Joins the project's observers until destroyed; the project must outlive it.
    CRefusingProjectObserver(model::CProject& project, std::string reason);
    ~CRefusingProjectObserver() override;
    CRefusingProjectObserver(const CRefusingProjectObserver&) = delete;
    CRefusingProjectObserver& operator=(const CRefusingProjectObserver&) = delete;

    void onProjectOpened() override;
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                          const EntityIdSet& removed) override;
    void onProjectClosing() override;

private:
    model::CProject& project_;
    std::string reason_;
};

} // namespace aec::host
