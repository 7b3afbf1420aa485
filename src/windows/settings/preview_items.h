#pragma once

#include "settings/styles.h"
#include "theme/app_theme.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// A small picture that is painted anew when what it shows has changed. Assistive programs do not see it: it
/// stands in a button that says the same.
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

/// The edge of a rounded rectangle, inside of it, in a colour and of a width that need not be whole.
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

/// The line of a `GraphLineStylePreview`.
class GraphLineDrawing : public orvelle::PreviewItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orvelle::GraphLineStyle style MEMBER m_style NOTIFY changed)

public:
    using PreviewItem::PreviewItem;
    void paint(QPainter* painter) override;

private:
    GraphLineStyle m_style = GraphLineStyle::smooth;
};

/// The bars of a `BarStylePreview`.
class BarDrawing : public orvelle::PreviewItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orvelle::BarChartStyle style MEMBER m_style NOTIFY changed)

public:
    using PreviewItem::PreviewItem;
    void paint(QPainter* painter) override;

private:
    BarChartStyle m_style = BarChartStyle::rounded;
};

/// The ring of a `RingStylePreview`.
class RingDrawing : public orvelle::PreviewItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orvelle::RingChartStyle style MEMBER m_style NOTIFY changed)

public:
    using PreviewItem::PreviewItem;
    void paint(QPainter* painter) override;

private:
    RingChartStyle m_style = RingChartStyle::fullRing;
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
