#pragma once

#include "aec/AecApi.h"

#include <string>

namespace aec
{

// The host's status line, where activities say what they are doing.
class AEC_INTERFACE IStatusService
{
public:
    virtual ~IStatusService() = default;

    // Shows the message.
    virtual void showStatus(const std::wstring& message) = 0;
};

} // namespace aec
