#include "windows/charts/chart_item.h"

#include <QPainter>
#include <QQuickPaintedItem>
#include <QQuickWindow>

#include <cmath>

namespace orvelle {

/// The surface of a chart item. It is larger than the item by the overhang, because an item paints nothing
/// beyond its own edges.
class ChartCanvas final : public QQuickPaintedItem {
public:
    explicit ChartCanvas(ChartItem& host)
        : QQuickPaintedItem(&host)
        , m_host(host) {}

    void paint(QPainter* painter) override {
        painter->translate(-position());
        m_host.paintChart(*painter, {{0, 0}, m_host.size()});
    }

private:
    ChartItem& m_host;
};

ChartItem::ChartItem(AnimationClock& clock)
    : m_clock(clock)
    , m_animation(clock, [this](double seconds) { step(seconds); })
    , m_canvas(new ChartCanvas(*this)) {
    connect(this, &ChartItem::changed, this, &ChartItem::followChange);
    connect(&clock, &AnimationClock::reducedChanged, this, &ChartItem::refresh);
}

ChartItem::~ChartItem() = default;

std::chrono::milliseconds ChartItem::frameInterval() const {
    return std::chrono::milliseconds(33); // the charts move too little for more to be seen
}

void ChartItem::componentComplete() {
    QQuickItem::componentComplete();
    updateShown();
}

void ChartItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        watchWindow(data.window);
    else if (change == ItemVisibleHasChanged)
        updateShown();
}

void ChartItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        fitCanvas();
}

void ChartItem::watchWindow(QQuickWindow* window) {
    disconnect(m_windowShown);
    if (window != nullptr)
        m_windowShown = connect(window, &QWindow::visibleChanged, this, &ChartItem::updateShown);
    updateShown();
}

void ChartItem::updateShown() {
    const bool isShown = isComponentComplete() && isVisible() && window() != nullptr && window()->isVisible();
    if (m_isShown == isShown)
        return;
    m_isShown = isShown;
    if (isShown && !m_hasOpened) {
        m_hasOpened = true;
        open();
    }
    refresh();
}

void ChartItem::followChange() {
    follow();
    refresh();
}

void ChartItem::step(double seconds) {
    advance(seconds);
    if (hasMoved() || !isAnimating())
        repaint();
    continueOrStop();
    Q_EMIT animated();
}

void ChartItem::refresh() {
    if (!mayAnimate())
        settle();
    repaint();
    continueOrStop();
}

void ChartItem::repaint() {
    const QSizeF natural = naturalSize();
    setImplicitSize(natural.width(), natural.height());
    fitCanvas();
    m_canvas->update();
}

void ChartItem::continueOrStop() {
    if (mayAnimate() && isAnimating())
        m_animation.start(frameInterval());
    else
        m_animation.stop();
}

void ChartItem::fitCanvas() {
    // Whole points keep the picture on the pixels that it was painted for.
    const double room = std::ceil(overhang());
    m_canvas->setPosition({-room, -room});
    m_canvas->setSize(size() + 2 * QSizeF(room, room));
}

} // namespace orvelle
