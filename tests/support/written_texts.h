#pragma once

#include <QFontInfo>
#include <QFontMetricsF>
#include <QList>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QString>

#include <functional>
#include <ostream>

namespace orvelle {

/// A text as passed to a painter.
struct WrittenText {
    QString text;
    int pixelSize = 0;
    int weight = QFont::Normal;
    bool isMonospaced = false;
    QColor color;

    bool operator==(const WrittenText&) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const WrittenText& written) {
    return stream << '"' << written.text.toStdString() << "\" at " << written.pixelSize << ", weight "
                  << written.weight << (written.isMonospaced ? ", monospaced, " : ", ")
                  << written.color.name(QColor::HexArgb).toStdString();
}

/// Records the texts and draws nothing.
class WritingEngine final : public QPaintEngine {
public:
    explicit WritingEngine(QList<WrittenText>& texts)
        : QPaintEngine(AllFeatures)
        , m_texts(texts) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& change) override {
        if ((change.state() & DirtyPen) != 0)
            m_color = QColor::fromRgba(change.pen().color().rgba()); // with the precision of pixels
    }
    void drawTextItem(const QPointF& /*place*/, const QTextItem& item) override {
        const QFont font = item.font();
        const QFontMetricsF metrics(font);
        const bool isMonospaced = QFontInfo(font).fixedPitch() &&
                                  metrics.horizontalAdvance(u'i') == metrics.horizontalAdvance(u'W');
        m_texts.append({item.text(), font.pixelSize(), font.weight(), isMonospaced, m_color});
    }
    void drawPixmap(const QRectF& /*target*/, const QPixmap& /*pixmap*/, const QRectF& /*source*/) override {}
    void drawImage(const QRectF& /*target*/, const QImage& /*image*/, const QRectF& /*source*/,
                   Qt::ImageConversionFlags /*flags*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawPolygon(const QPoint* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    [[nodiscard]] Type type() const override { return User; }

private:
    QList<WrittenText>& m_texts;
    QColor m_color;
};

/// A surface of one pixel per point that records the texts painted on it.
class WritingSurface final : public QPaintDevice {
public:
    QList<WrittenText> texts;

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
        constexpr int side = 1000;
        constexpr int dotsPerInch = 96;
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return side;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    mutable WritingEngine m_engine{texts};
};

/// The texts that `paint` writes, in painting order.
[[nodiscard]] inline QList<WrittenText> writtenTexts(const std::function<void(QPainter&)>& paint) {
    WritingSurface surface;
    QPainter painter(&surface);
    paint(painter);
    painter.end();
    return surface.texts;
}

} // namespace orvelle
