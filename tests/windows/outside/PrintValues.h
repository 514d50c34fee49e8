#pragma once
// What GoogleTest says of places and sizes.

#include <atltypes.h>

#include <ostream>

inline void PrintTo(CRect const & rect, std::ostream * out)
{
    *out << "(" << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ")";
}
inline void PrintTo(CSize const & size, std::ostream * out)
{
    *out << size.cx << " x " << size.cy;
}
inline void PrintTo(CPoint const & point, std::ostream * out)
{
    *out << "(" << point.x << ", " << point.y << ")";
}
