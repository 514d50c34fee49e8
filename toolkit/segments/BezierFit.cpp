#include "segments/BezierFit.h"

#include <cmath>
#include <cstddef>

namespace DigiStatic
{
namespace
{
constexpr int pass_count = 2;
constexpr double first_step = 0.5;
constexpr double least_step = 0.01;
constexpr double step_divisor = -3;

constexpr double scan_end = 1.01;
constexpr double least_move = 0.001;
/// Ends a secant search that runs in a circle, as happens for some sizes of a cell; one that ends by itself has been
/// seen to take up to a tenth of this.
constexpr int secant_limit = 10000;

/// One coordinate of the curve as a polynomial in t, -1 at its beginning and 1 at its end.
struct Polynomial
{
    double a0;
    double a1;
    double a2;
    double a3;

    Polynomial(double x0, double x1, double x2, double x3) :
        a0(0), a1(0), a2(3 * (x3 + x0 - x1 - x2) / 8), a3((x3 - x0 + 3 * (x1 - x2)) / 8)
    {
        a1 = (x3 - x0) / 2 - a3;
        a0 = (x3 + x0) / 2 - a2;
    }

    double At(double t) const { return ((a3 * t + a2) * t + a1) * t + a0; }
    double SlopeAt(double t) const { return (3 * a3 * t + 2 * a2) * t + a1; }
};

/// A place on the curve as seen from one point of the run.
struct Place
{
    double t;
    double squaredDistance;
    double slope;
};

struct Curve
{
    Polynomial x;
    Polynomial y;

    double SquaredDistance(CDigiPoint const & target, double t) const
    {
        double const dx = x.At(t) - target.x;
        double const dy = y.At(t) - target.y;
        return dx * dx + dy * dy;
    }
    Place From(CDigiPoint const & target, double t) const
    {
        double const dx = x.At(t) - target.x;
        double const dy = y.At(t) - target.y;
        return {t, dx * dx + dy * dy, x.SlopeAt(t) * dx + y.SlopeAt(t) * dy};
    }
};

double Clamped(double t)
{
    return t < -1 ? -1 : t > 1 ? 1 : t;
}

double NextOfSecant(Place const & previous, Place const & current)
{
    if (current.slope != previous.slope)
        return Clamped((current.slope * previous.t - previous.slope * current.t) / (current.slope - previous.slope));
    return Clamped((previous.t + current.t) / 2);
}

/// The squared distance of the target from the place on the curve that the search ends at.
double SearchedDistance(Curve const & curve, CDigiPoint const & target, double dt)
{
    double best = -1;
    double least = curve.SquaredDistance(target, best);
    for (double t = best; t <= scan_end; t += dt)
    {
        double const squaredDistance = curve.SquaredDistance(target, t);
        if (squaredDistance == 0)
            return 0;
        if (squaredDistance < least)
        {
            best = t;
            least = squaredDistance;
        }
    }

    double const beside = best + dt;
    Place previous = curve.From(target, best);
    Place current = curve.From(target, beside > 1 ? 1 - dt : beside);
    for (int i = 0; i < secant_limit && current.squaredDistance != 0 && current.slope != 0; ++i)
    {
        double const t = NextOfSecant(previous, current);
        if (!(std::abs(t - current.t) >= least_move))
            break;
        previous = current;
        current = curve.From(target, t);
    }
    return current.squaredDistance;
}

double ErrorOf(std::span<CDigiPoint const> points, CDigiPoint const & first, CDigiPoint const & second)
{
    CDigiPoint const & begin = points.front();
    CDigiPoint const & end = points.back();
    Curve const curve = {{begin.x, first.x, second.x, end.x}, {begin.y, first.y, second.y, end.y}};
    double const numberCount = 2.0 * static_cast<double>(points.size());
    double sum = 0;
    for (CDigiPoint const & target : points.subspan(1, points.size() - 2))
        sum += SearchedDistance(curve, target, 2 / numberCount);
    return sum;
}

/// Moves one number of the control points away from its anchor and back while that makes the error smaller.
template <class Error> void Search(double & number, double anchor, double & least, Error const & error)
{
    double best = number;
    for (double step = first_step; std::abs(step) >= least_step;)
    {
        number += (number - anchor) * step;
        double const current = error();
        if (current > least)
        {
            number = best;
            step /= step_divisor;
        }
        else if (current < least)
        {
            least = current;
            best = number;
        }
        else
        {
            return; // the number stays where it is; so it does if the error is not a number
        }
    }
}
} // namespace

double BezierError(std::span<CDigiPoint const> points, CBezierControls const & controls)
{
    return ErrorOf(points, controls.first, controls.second);
}

CBezierControls FitBezier(std::span<CDigiPoint const> points)
{
    CDigiPoint const & begin = points.front();
    CDigiPoint const & end = points.back();
    CDigiPoint const & second = points[1];
    CDigiPoint const & lastButOne = points[points.size() - 2];
    CBezierControls controls = {{second.x + (second.x - begin.x), second.y + (second.y - begin.y)},
                                {lastButOne.x + (lastButOne.x - end.x), lastButOne.y + (lastButOne.y - end.y)}};

    auto const error = [&] { return BezierError(points, controls); };
    double least = error();
    for (int pass = 0; pass < pass_count; ++pass)
    {
        Search(controls.first.x, begin.x, least, error);
        Search(controls.first.y, begin.y, least, error);
        Search(controls.second.x, end.x, least, error);
        Search(controls.second.y, end.y, least, error);
    }
    return controls;
}
} // namespace DigiStatic
