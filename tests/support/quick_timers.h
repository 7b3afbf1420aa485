#pragma once

#include <QQuickItem>

#include <algorithm>

namespace orvelle {

/// Whether a QML timer of `item` or of an item inside it runs.
[[nodiscard]] inline bool hasRunningTimer(const QQuickItem& item) {
    const bool hasOwn = std::ranges::any_of(item.children(), [](const QObject* each) {
        return each->inherits("QQmlTimer") && each->property("running").toBool();
    });
    const QList<QQuickItem*> inside = item.childItems();
    return hasOwn ||
           std::ranges::any_of(inside, [](const QQuickItem* each) { return hasRunningTimer(*each); });
}

} // namespace orvelle
