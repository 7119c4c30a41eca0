#include "HostChecks/RefusingProjectObserver.h"

#include "AecModel/Project.h"
#include "Common/Exception.h"

#include <utility>

namespace aec::host
{

CRefusingProjectObserver::CRefusingProjectObserver(model::CProject& project, std::string reason)
    : project_(project), reason_(std::move(reason))
{
    project_.getObjectEvents().addObserver(*this);
}

CRefusingProjectObserver::~CRefusingProjectObserver()
{
    project_.getObjectEvents().removeObserver(*this);
}

void CRefusingProjectObserver::onProjectOpened() {}

void CRefusingProjectObserver::onObjectsChanged(std::uint32_t /*code*/, std::uint32_t /*value*/,
                                                const EntityIdSet& /*changed*/,
                                                const EntityIdSet& /*removed*/)
{
    throw common::EException(reason_);
}

void CRefusingProjectObserver::onProjectClosing() {}

} // namespace aec::host
