#pragma once

#include <QQuickItem>

#include <algorithm>

namespace orvelle {

/// Whether a timer of QML runs that belongs to `item` or to an item in it.
[[nodiscard]] inline bool hasRunningTimer(const QQuickItem& item) {
    const bool hasOwn = std::ranges::any_of(item.children(), [](const QObject* each) {
        return each->inherits("QQmlTimer") && each->property("running").toBool();
    });
    const QList<QQuickItem*> inside = item.childItems();
    return hasOwn ||
           std::ranges::any_of(inside, [](const QQuickItem* each) { return hasRunningTimer(*each); });
}

} // namespace orvelle
