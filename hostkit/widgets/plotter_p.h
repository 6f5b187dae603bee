// Inside the Plotter: the map from axis values to pixel positions, shared
// by the widget and its curve drawing.
#pragma once

#include "hostwidgets.h"

#include <QRect>

#include <algorithm>
#include <cmath>
#include <limits>

#include <vector>

namespace plotter {

// Points per block of a sorted curve's summary: the summary costs 1/64 of
// the data's memory and spares all but the two partial blocks at a
// column's ends.
constexpr std::size_t kBlock = 64;

// The summary of flat x, y data: lowest and highest y of each whole block
// of kBlock points, both NaN for a block holding a y that isn't finite.
std::vector<double> blockExtremes(const std::vector<double>& data);

// Continuous pixel position along one axis: pixel = origin + (t(v) - t0) * k,
// where t is log10 on a logarithmic axis. Pixel p covers [p, p + 1).
struct Scale {
    double t0 = 0.0;
    double k = 1.0;
    double origin = 0.0;
    bool log = false;

    // The limits map to the first and the last pixel of the area, so that
    // a curve on a limit is drawn; y runs upwards.
    static Scale horizontal(const Axis& axis, const QRect& area)
    {
        return of(axis, area.left(), std::max(1, area.width() - 1), false);
    }
    static Scale vertical(const Axis& axis, const QRect& area)
    {
        return of(axis, area.top() + area.height() - 1, std::max(1, area.height() - 1), true);
    }
    static Scale of(const Axis& axis, double origin, double length, bool upwards)
    {
        Scale s;
        s.log = axis.isLogarithmic();
        s.t0 = s.log ? std::log10(axis.low()) : axis.low();
        const double t1 = s.log ? std::log10(axis.high()) : axis.high();
        s.k = (upwards ? -length : length) / (t1 - s.t0);
        s.origin = origin;
        return s;
    }
    // Non-finite for values the axis can't show.
    double t(double v) const
    {
        if (!log)
            return v;
        return v > 0.0 ? std::log10(v) : std::numeric_limits<double>::quiet_NaN();
    }
    double toPixel(double v) const { return origin + (t(v) - t0) * k; }
    // The axis' own scale at a pixel position (log10 of the value on a log
    // axis), and the value there.
    double tFromPixel(double pixel) const { return t0 + (pixel - origin) / k; }
    double fromPixel(double pixel) const
    {
        const double tv = tFromPixel(pixel);
        return log ? std::pow(10.0, tv) : tv;
    }
};

} // namespace plotter
