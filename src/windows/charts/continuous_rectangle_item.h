#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// A plate of one colour in the shape of `continuousRoundedRect`.
class ContinuousRectangleItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(ContinuousRectangle)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    explicit ContinuousRectangleItem(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor m_color = Qt::transparent;
    double m_radius = 0;
};

} // namespace orvelle
