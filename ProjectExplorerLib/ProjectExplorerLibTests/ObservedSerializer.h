#pragma once

#include "aec/ProjectEntityCopyData.h"
#include "aec/ProjectEntityPasteDataSessionSerializer.h"

#include <functional>
#include <memory>
#include <string>

namespace project_explorer::test
{

// The host's paste-data serializer, which runs `whileDecoding`, when set, as it decodes: a look at
// the host while a paste is under way.
class ObservedSerializer final : public aec::serialization::IProjectEntityPasteDataSessionSerializer
{
public:
    explicit ObservedSerializer(IProjectEntityPasteDataSessionSerializer& serializer)
        : serializer_(serializer)
    {
    }
    std::wstring serialize(const aec::IProjectEntityCopyData& data) override
    {
        return serializer_.serialize(data);
    }
    std::unique_ptr<aec::IProjectEntityPasteData> deserialize(const std::wstring& text,
                                                              const aec::PasteContext& context) override
    {
        if (whileDecoding)
            whileDecoding();
        return serializer_.deserialize(text, context);
    }

    std::function<void()> whileDecoding;

private:
    IProjectEntityPasteDataSessionSerializer& serializer_;
};

} // namespace project_explorer::test
