#pragma once

#include "AecApp/AecAppApi.h"

namespace aec
{

class IStatusService;

// For a destructor's catch block: tells the user, on the host's status line, that a binding with
// the host could not be undone, with the failure being handled. A destructor has no caller to pass
// the failure to, and the status line is where the host shows what it cannot show elsewhere.
// Nothing happens without a status service, or when showing fails too.
AECAPP_API void reportTeardownFailure(IStatusService* statusService) noexcept;

} // namespace aec
