#include "charts/bar_look.h"

namespace orvelle {

BarLook interpolate(const BarLook& from, const BarLook& to, double progress) {
    return {interpolate(from.ratio, to.ratio, progress), interpolate(from.color, to.color, progress)};
}

QList<BarLook> interpolate(const QList<BarLook>& from, const QList<BarLook>& to, double progress) {
    if (from.size() != to.size())
        return to;
    QList<BarLook> result;
    result.reserve(to.size());
    for (qsizetype index = 0; index < to.size(); ++index)
        result.append(interpolate(from[index], to[index], progress));
    return result;
}

} // namespace orvelle
