#pragma once

#include "Common/Exception.h"

namespace aec::model
{

// Why one field of a stored JSON document does not read. The readers catch it to say where the
// field was (an entry of the explorer state, an entity of a project file); it never leaves the
// library.
class EJsonFieldError : public common::EException
{
public:
    using common::EException::EException;
    ~EJsonFieldError() override;
};

} // namespace aec::model
