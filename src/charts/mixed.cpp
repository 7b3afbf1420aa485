#include "charts/mixed.h"

#include <cmath>

namespace orvelle {
namespace {

constexpr qsizetype fewestDrawnSamples = 2;

/// The sample at `position`, counted in samples from the oldest; between two it is read off a straight line.
double sampleAt(const QList<double>& series, double position) {
    const auto before = static_cast<qsizetype>(std::floor(position));
    const qsizetype after = std::min(before + 1, series.size() - 1);
    return mixed(series[before], series[after], position - static_cast<double>(before));
}

} // namespace

double mixed(double from, double to, double progress) {
    return from + (to - from) * progress;
}

QColor mixed(const QColor& from, const QColor& to, double progress) {
    const auto component = [progress](float first, float second) {
        return static_cast<float>(mixed(static_cast<double>(first), static_cast<double>(second), progress));
    };
    return QColor::fromRgbF(component(from.redF(), to.redF()), component(from.greenF(), to.greenF()),
                            component(from.blueF(), to.blueF()), component(from.alphaF(), to.alphaF()));
}

BarLook mixed(const BarLook& from, const BarLook& to, double progress) {
    return {mixed(from.ratio, to.ratio, progress), mixed(from.color, to.color, progress)};
}

QList<BarLook> mixed(const QList<BarLook>& from, const QList<BarLook>& to, double progress) {
    if (from.size() != to.size())
        return to;
    QList<BarLook> result;
    result.reserve(to.size());
    for (qsizetype index = 0; index < to.size(); ++index)
        result.append(mixed(from[index], to[index], progress));
    return result;
}

QList<double> mixed(const QList<double>& from, const QList<double>& to, double progress) {
    if (from.size() < fewestDrawnSamples || to.size() < fewestDrawnSamples)
        return to;
    const double fromPerTo = static_cast<double>(from.size() - 1) / static_cast<double>(to.size() - 1);
    QList<double> result;
    result.reserve(to.size());
    for (qsizetype index = 0; index < to.size(); ++index) {
        const double position =
            std::min(static_cast<double>(index) * fromPerTo, static_cast<double>(from.size() - 1));
        result.append(mixed(sampleAt(from, position), to[index], progress));
    }
    return result;
}

} // namespace orvelle
