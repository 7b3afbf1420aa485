#include "core/metric_history.h"

namespace orvelle::MetricHistory {

void append(QList<double>& history, double sample, qsizetype maximumCount) {
    history.append(sample);
    if (history.size() > maximumCount)
        history.remove(0, history.size() - maximumCount);
}

} // namespace orvelle::MetricHistory
