#pragma once

namespace aec
{

// A point on the screen or in a panel, in the host's coordinates.
struct MbCartPoint
{
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const MbCartPoint&, const MbCartPoint&) = default;
};

} // namespace aec
