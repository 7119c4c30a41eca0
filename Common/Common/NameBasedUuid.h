#pragma once

#include "Common/CommonApi.h"
#include "Common/UUID.h"

#include <string_view>

namespace common
{

// The RFC 4122 version-5 (SHA-1, name-based) UUID of a name inside a namespace: the same
// (namespace, name) always gives the same UUID, on every machine and in every session. The name
// is hashed as UTF-8, so the result equals the standard v5 UUID of that text. Things that have
// only a name (a subgroup, for instance) get a stable identifier this way.
COMMON_API UUID makeNameBasedUuid(const UUID& nameSpace, std::wstring_view name);

} // namespace common
