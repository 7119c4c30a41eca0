#pragma once

#include "HostServices/HostServicesApi.h"

#include "aec/Translation.h"

namespace aec::host
{

// The host's English texts. A number without a text reads "#<number>", so that a missing text
// shows in the user interface instead of an empty menu entry.
class HOSTSERVICES_API CTranslation final : public ITranslation
{
public:
    CTranslation() = default;
    ~CTranslation() override;

    std::wstring getText(int textId) const override;
    // Every "{}" of the text is replaced; the argument's own characters are left as they are.
    std::wstring fillIn(const std::wstring& text, const std::wstring& argument) const override;
};

} // namespace aec::host
