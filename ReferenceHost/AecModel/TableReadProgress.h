#pragma once

#include <functional>

namespace aec::model
{

// Told now and then how much of a table file has been read, from 0 to 1. It may cancel the read by
// throwing; the exception reaches the reader's caller unchanged.
using TableReadProgress = std::function<void(double done)>;

} // namespace aec::model
