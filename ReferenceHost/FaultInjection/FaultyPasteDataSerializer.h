#pragma once

#include "aec/ProjectEntityPasteDataSessionSerializer.h"

namespace aec::fault_injection
{

class CFaultPlan;

// The paste-data serializer, failing where the plan says.
class CFaultyPasteDataSerializer final : public serialization::IProjectEntityPasteDataSessionSerializer
{
public:
    CFaultyPasteDataSerializer(CFaultPlan& plan,
                               serialization::IProjectEntityPasteDataSessionSerializer& inner)
        : plan_(plan), inner_(inner)
    {
    }

    std::wstring serialize(const IProjectEntityCopyData& data) override;
    std::unique_ptr<IProjectEntityPasteData> deserialize(const std::wstring& text,
                                                         const PasteContext& context) override;

private:
    CFaultPlan& plan_;
    serialization::IProjectEntityPasteDataSessionSerializer& inner_;
};

} // namespace aec::fault_injection
