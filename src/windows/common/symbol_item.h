#pragma once

#include <QColor>
#include <QFont>
#include <QQuickPaintedItem>

namespace orvelle {

/// A symbol by its name, as tall as a line of text of its size. It stands beside a text of the same meaning,
/// so assistive programs do not see it.
class SymbolItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Symbol)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed REQUIRED)
    Q_PROPERTY(double fontSize MEMBER m_fontSize NOTIFY changed REQUIRED)
    Q_PROPERTY(int weight MEMBER m_weight NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed REQUIRED)
    /// Clockwise rotation about the centre, in degrees. The scene graph would rotate the pixels of the
    /// finished picture, which leaves jagged edges.
    Q_PROPERTY(double angle MEMBER m_angle NOTIFY changed)

public:
    explicit SymbolItem(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    void refresh();

    QString m_name;
    double m_fontSize = 0;
    int m_weight = QFont::Normal;
    QColor m_color;
    double m_angle = 0;
};

} // namespace orvelle
