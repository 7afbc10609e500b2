#pragma once

namespace tempodial {

/// A place on the agenda in pixels of the toolkit, from the top left corner of its first day's midnight.
struct PixelBox
{
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double Right() const { return left + width; }
    double Bottom() const { return top + height; }
    /// True for a point in it; the right and lower edges belong to what comes next.
    bool Holds(double x, double y) const { return x >= left && x < Right() && y >= top && y < Bottom(); }
    /// True when both have some place in common.
    bool Meets(const PixelBox& other) const
    {
        return left < other.Right() && other.left < Right() && top < other.Bottom() && other.top < Bottom();
    }

    friend bool operator==(const PixelBox&, const PixelBox&) = default;
};

}
