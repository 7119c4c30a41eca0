#pragma once

#include "Common/Exception.h"
#include "aec/AecApi.h"

namespace aec
{

// A model object does not offer the interface that aec::cast was asked for.
class AEC_INTERFACE EBadModelObjectCast : public common::EException
{
public:
    using common::EException::EException;
};

} // namespace aec
