#include "segments/BezierFit.h"

#include <cmath>
#include <vector>

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

    Polynomial(double x0, double x1, double x2, double x3)
        : a0(0),
          a1(0),
          a2(3 * (x3 + x0 - x1 - x2) / 8),
          a3((x3 - x0 + 3 * (x1 - x2)) / 8)
    {
        a1 = (x3 - x0) / 2 - a3;
        a0 = (x3 + x0) / 2 - a2;
    }

    double At(double t) const { return ((a3 * t + a2) * t + a1) * t + a0; }
    double SlopeAt(double t) const { return (3 * a3 * t + 2 * a2) * t + a1; }
};

double SquaredDistance(CDigiPoint const & a, CDigiPoint const & b)
{
    double const dx = a.x - b.x;
    double const dy = a.y - b.y;
    return dx * dx + dy * dy;
}

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

    CDigiPoint At(double t) const { return {x.At(t), y.At(t)}; }
    Place From(CDigiPoint const & target, double t) const
    {
        CDigiPoint const place = At(t);
        double const slope = x.SlopeAt(t) * (place.x - target.x) + y.SlopeAt(t) * (place.y - target.y);
        return {t, SquaredDistance(place, target), slope};
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

/// The points that a curve is to meet, and the places where it is looked at first, which are the same for all of them.
class Run
{
public:
    explicit Run(std::span<CDigiPoint const> points) : m_points(points)
    {
        double const numberCount = 2.0 * static_cast<double>(points.size());
        m_step = 2 / numberCount;
        for (double t = -1; t <= scan_end; t += m_step)
            m_scan.push_back({t, {}});
    }

    double Error(CBezierControls const & controls)
    {
        CDigiPoint const & begin = m_points.front();
        CDigiPoint const & end = m_points.back();
        Curve const curve = {{begin.x, controls.first.x, controls.second.x, end.x},
                             {begin.y, controls.first.y, controls.second.y, end.y}};
        for (Scanned & scanned : m_scan)
            scanned.place = curve.At(scanned.t);
        double sum = 0;
        for (CDigiPoint const & target : m_points.subspan(1, m_points.size() - 2))
            sum += SearchedDistance(curve, target);
        return sum;
    }

private:
    struct Scanned
    {
        double t;
        CDigiPoint place;
    };

    /// The squared distance of the target from the place on the curve that the search ends at.
    double SearchedDistance(Curve const & curve, CDigiPoint const & target) const
    {
        double best = m_scan.front().t;
        double least = SquaredDistance(m_scan.front().place, target);
        for (Scanned const & scanned : m_scan)
        {
            double const squaredDistance = SquaredDistance(scanned.place, target);
            if (squaredDistance == 0)
                return 0;
            if (squaredDistance < least)
            {
                best = scanned.t;
                least = squaredDistance;
            }
        }

        double const beside = best + m_step;
        Place previous = curve.From(target, best);
        Place current = curve.From(target, beside > 1 ? 1 - m_step : beside);
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

    std::span<CDigiPoint const> m_points;
    double m_step;
    std::vector<Scanned> m_scan;
};

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
    return Run(points).Error(controls);
}

CBezierControls FitBezier(std::span<CDigiPoint const> points)
{
    CDigiPoint const & begin = points.front();
    CDigiPoint const & end = points.back();
    CDigiPoint const & second = points[1];
    CDigiPoint const & lastButOne = points[points.size() - 2];
    CBezierControls controls = {{second.x + (second.x - begin.x), second.y + (second.y - begin.y)},
                                {lastButOne.x + (lastButOne.x - end.x), lastButOne.y + (lastButOne.y - end.y)}};

    Run run(points);
    auto const error = [&] { return run.Error(controls); };
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
