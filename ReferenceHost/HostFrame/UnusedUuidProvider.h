#pragma once

#include "Common/UuidProvider.h"
#include "HostFrame/HostFrameApi.h"

#include <functional>
#include <memory>
#include <string>

namespace aec::host
{

// Hands out only identifiers that the open project does not use yet. A seeded run repeats its
// sequence, so a project saved by one seeded run and opened by another holds exactly the
// identifiers that the second run would make next; the model refuses a second entity of one
// identifier, so those are skipped.
class HOSTFRAME_API CUnusedUuidProvider final : public common::IUuidProvider
{
public:
    using UsedPredicate = std::function<bool(const common::UUID&)>;

    // Without a source, fresh random identifiers are drawn.
    CUnusedUuidProvider(std::shared_ptr<common::IUuidProvider> source, UsedPredicate isUsed);
    ~CUnusedUuidProvider() override;

    common::UUID generate(const std::string& hint) override;

private:
    std::shared_ptr<common::IUuidProvider> source_;
    UsedPredicate isUsed_;
};

} // namespace aec::host
