#pragma once

#include "aec/Document.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The document that shows a project, failing where the plan says.
class CFaultyDocument final : public IDocument
{
public:
    CFaultyDocument(CFaultPlan& plan, IDocument& inner) : plan_(plan), inner_(inner) {}

    std::uint32_t getKey() const override;
    IPropertyContext* getPropertyContext() const override;

private:
    CFaultPlan& plan_;
    IDocument& inner_;
};

} // namespace aec::fault_injection
