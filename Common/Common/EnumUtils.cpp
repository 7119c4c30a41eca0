#include "Common/EnumUtils.h"

namespace enum_utils
{

// Out of line, so that the type information has its one home in libCommon.
exception::~exception() = default;

bad_conversion::~bad_conversion() = default;

} // namespace enum_utils
