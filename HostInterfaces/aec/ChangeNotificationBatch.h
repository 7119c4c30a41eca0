#pragma once

#include "aec/AecApi.h"

namespace aec
{

// Collects the project's change notifications between open and close and sends them as one.
class AEC_INTERFACE IChangeNotificationBatch
{
public:
    virtual ~IChangeNotificationBatch() = default;

    // Starts collecting; batches nest.
    virtual void open() = 0;
    // Stops collecting; the outermost close sends what was collected. The batch is closed also when
    // sending fails (an observer throws).
    virtual void close() = 0;
};

} // namespace aec
