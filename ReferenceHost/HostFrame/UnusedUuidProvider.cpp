#include "HostFrame/UnusedUuidProvider.h"

#include "Common/Check.h"

namespace aec::host
{

CUnusedUuidProvider::CUnusedUuidProvider(std::shared_ptr<common::IUuidProvider> source, UsedPredicate isUsed)
    : source_(std::move(source)), isUsed_(std::move(isUsed))
{
    COMMON_PRECONDITION(isUsed_ != nullptr);
}

CUnusedUuidProvider::~CUnusedUuidProvider() = default;

common::UUID CUnusedUuidProvider::generate(const std::string& hint)
{
    // A project holds finitely many identifiers and the source does not repeat itself, so the
    // search ends after at most as many draws as the project has entities.
    for (;;)
    {
        const common::UUID candidate = source_ != nullptr ? source_->generate(hint) : common::UUID::create();
        if (!isUsed_(candidate))
            return candidate;
    }
}

} // namespace aec::host
