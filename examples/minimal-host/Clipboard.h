#pragma once

#include "aec/Clipboard.h"
#include "aec/ClipboardListener.h"
#include "aec/ProjectEntityPasteDataSessionSerializer.h"

#include <cstdint>
#include <map>
#include <vector>

namespace minimal_host
{

// The application's clipboard, which the explorer's activity follows to enable paste, and the
// serializer that would turn copied entities into clipboard text and back. This host has no
// clipboard format for entities, so the serializer refuses both ways.
class CClipboard final : public aec::IClipboard,
                         public aec::IClipboardListenerRegistry,
                         public aec::serialization::IProjectEntityPasteDataSessionSerializer
{
public:
    // aec::IClipboard
    void setData(std::uint32_t format, const std::wstring& data) override;
    std::optional<std::wstring> getData(std::uint32_t format) const override;
    bool hasData(std::uint32_t format) const override;

    // aec::IClipboardListenerRegistry
    void addListener(aec::IClipboardListener& listener) override;
    void removeListener(aec::IClipboardListener& listener) override;

    // aec::serialization::IProjectEntityPasteDataSessionSerializer
    std::wstring serialize(const aec::IProjectEntityCopyData& data) override;
    std::unique_ptr<aec::IProjectEntityPasteData> deserialize(const std::wstring& text,
                                                              const aec::PasteContext& context) override;

private:
    std::map<std::uint32_t, std::wstring> content_;
    std::vector<aec::IClipboardListener*> listeners_;
};

} // namespace minimal_host
