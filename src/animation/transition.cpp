#include "animation/transition.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr qsizetype fewestDrawnSamples = 2;

/// The value of the line through the samples at `position`, which is counted in samples from the oldest.
double sampleAt(const QList<double>& series, double position) {
    const auto before = static_cast<qsizetype>(std::floor(position));
    const qsizetype after = std::min(before + 1, series.size() - 1);
    return interpolate(series[before], series[after], position - static_cast<double>(before));
}

} // namespace

double interpolate(double from, double to, double progress) {
    return from + (to - from) * progress;
}

QColor interpolate(const QColor& from, const QColor& to, double progress) {
    const auto component = [progress](float first, float second) {
        return static_cast<float>(
            interpolate(static_cast<double>(first), static_cast<double>(second), progress));
    };
    return QColor::fromRgbF(component(from.redF(), to.redF()), component(from.greenF(), to.greenF()),
                            component(from.blueF(), to.blueF()), component(from.alphaF(), to.alphaF()));
}

QList<double> interpolate(const QList<double>& from, const QList<double>& to, double progress) {
    if (from.size() < fewestDrawnSamples || to.size() < fewestDrawnSamples)
        return to;
    const double fromPerTo = static_cast<double>(from.size() - 1) / static_cast<double>(to.size() - 1);
    QList<double> result;
    result.reserve(to.size());
    for (qsizetype index = 0; index < to.size(); ++index) {
        const double position =
            std::min(static_cast<double>(index) * fromPerTo, static_cast<double>(from.size() - 1));
        result.append(interpolate(sampleAt(from, position), to[index], progress));
    }
    return result;
}

} // namespace orvelle
