#pragma once

#include "aec/CopyDataBuilder.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The builder of copy data, failing where the plan says.
class CFaultyCopyDataBuilder final : public ICopyDataBuilder
{
public:
    CFaultyCopyDataBuilder(CFaultPlan& plan, const ICopyDataBuilder& inner) : plan_(plan), inner_(inner) {}

    std::unique_ptr<IProjectEntityCopyData> build(const CopyCollections& collections) const override;

private:
    CFaultPlan& plan_;
    const ICopyDataBuilder& inner_;
};

} // namespace aec::fault_injection
