#pragma once

#include "theme/app_theme.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// A small picture that is repainted when a property changes. Assistive programs ignore it: the button
/// around it says the same.
class PreviewItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit PreviewItem(QQuickItem* parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QColor m_color;
};

/// The border of a rounded rectangle, inside its edge. Its width may be fractional.
class Outline : public orvelle::PreviewItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double lineWidth MEMBER m_lineWidth NOTIFY changed)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    using PreviewItem::PreviewItem;
    void paint(QPainter* painter) override;

private:
    double m_lineWidth = 1;
    double m_radius = 0;
};

/// A sample chart in one of the styles that a setting offers.
class StyleDrawing : public orvelle::PreviewItem {
    Q_OBJECT
    QML_ELEMENT
    /// "graphLineStyle", "barChartStyle" or "ringChartStyle", as in the store.
    Q_PROPERTY(QString setting MEMBER m_setting NOTIFY changed)
    /// A value of that setting.
    Q_PROPERTY(int style MEMBER m_style NOTIFY changed)

public:
    using PreviewItem::PreviewItem;
    void paint(QPainter* painter) override;

private:
    void paintLine(QPainter& painter) const;
    void paintBars(QPainter& painter) const;
    void paintRing(QPainter& painter) const;

    QString m_setting;
    int m_style = 0;
};

/// The bars and dots of a `ThemePreviewCard`.
class ThemeDrawing : public orvelle::PreviewItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orvelle::AppTheme theme MEMBER m_theme NOTIFY changed)

public:
    using PreviewItem::PreviewItem;
    void paint(QPainter* painter) override;

private:
    AppTheme m_theme;
};

} // namespace orvelle
