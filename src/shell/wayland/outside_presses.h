#pragma once

#include <QObject>
#include <QRectF>

#include <functional>
#include <memory>

namespace orvelle {

/// Reports presses that no window of Qt hears of, as long as it exists.
class OutsidePresses : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void pressed();
};

/// Makes what reports presses anywhere but in the program's own windows and in `spared`, which is in points
/// of the desktop.
using MakeOutsidePresses = std::function<std::unique_ptr<OutsidePresses>(const QRectF& spared)>;

} // namespace orvelle
