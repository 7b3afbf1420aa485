#pragma once

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

namespace orvelle {

/// Ends a running timer at once, so that a test need not wait for it. The timer's action is done when the
/// function returns.
inline void endNow(QTimer& timer) {
    ASSERT_TRUE(timer.isActive());
    bool hasEnded = false;
    const auto watch = timer.callOnTimeout(&timer, [&hasEnded] { hasEnded = true; });
    const int interval = timer.interval();
    timer.setInterval(0);
    while (!hasEnded)
        QCoreApplication::processEvents();
    QObject::disconnect(watch);
    timer.setInterval(interval);
}

} // namespace orvelle
