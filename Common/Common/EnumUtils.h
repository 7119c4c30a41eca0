#pragma once

#include "Common/CommonApi.h"

#include <stdexcept>

// Errors of converting between enum values and their text keys (see EnumTable.h). Exported, so
// that one library can catch what another throws.
namespace enum_utils
{

class COMMON_API exception : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    ~exception() override;
};

// A key names no enum value, or a value has no single key.
class COMMON_API bad_conversion : public exception
{
public:
    using exception::exception;
    ~bad_conversion() override;
};

} // namespace enum_utils
