#pragma once

#include "aec/AecApi.h"

namespace aec
{

// One named change of the project. Destroying it without commit restores the project exactly.
class AEC_INTERFACE ITransaction
{
public:
    virtual ~ITransaction() = default;

    // Makes the changes permanent as one undo step named after the transaction. A commit that throws
    // makes no step, and destroying the transaction then leaves the project as it was.
    virtual void commit() = 0;
};

} // namespace aec
