#pragma once

#include <QObject>
#include <QRect>

#include <functional>
#include <memory>

namespace orvelle {

/// Reports presses that no window of Qt hears of, as long as it exists.
class OutsidePresses : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void pressed();
};

/// Makes what reports presses anywhere but within both rectangles, which are in points of the desktop: that
/// of a window, and one in which a press does not close it.
using MakeOutsidePresses =
    std::function<std::unique_ptr<OutsidePresses>(const QRect& window, const QRectF& spared)>;

} // namespace orvelle
