#include "bar_items.h"

#include "core/system_monitor.h"

#include <QImage>

namespace orvelle::soak {

/// An item that is on a screen and remembers how it is painted.
class BarItems::Item final : public StatusItem {
public:
    Item(QString identifier, double length)
        : m_identifier(std::move(identifier))
        , m_length(length) {}

    [[nodiscard]] const QString& identifier() const override { return m_identifier; }
    [[nodiscard]] double length() const override { return m_length; }
    void setPaint(ItemPaint paint) override { m_paint = std::move(paint); }
    void repaint() override {}
    void setWords(const QString& /*name*/, const QString& /*text*/) override {}
    [[nodiscard]] double visiblePixelsPerPoint() const override { return 1; }
    void setClickHandler(std::function<void(ClickButton)> /*handler*/) override {}

    void paint(QPainter& painter) const { m_paint(painter, {0, 0, m_length, 22}, BarAppearance::dark); }

private:
    QString m_identifier;
    double m_length;
    ItemPaint m_paint;
};

BarItems::BarItems(const ModuleContext& context)
    : m_context(context) {
    for (const ModuleInfo& module : moduleTable) {
        m_items.push_back(std::make_unique<Item>(QString(module.key), module.width));
        m_presenters.push_back(std::make_unique<ItemPresenter>(*m_items.back(), m_clock.clock));
    }
}

BarItems::~BarItems() = default;

void BarItems::show(Failures& failures) {
    for (std::size_t index = 0; index < m_presenters.size(); ++index) {
        const ItemScene scene = makeScene(moduleTable[index].id, m_context);
        for (const char* const absurd : {"nan", "inf"}) {
            if (scene.accessibleText.contains(QLatin1String(absurd)))
                failures.add("an item says " + scene.accessibleText.toStdString());
        }
        m_presenters[index]->show(scene, m_context.monitor.cpu().totalUsage());
    }
    for (int step = 0; step < 3; ++step) {
        m_clock.seconds += 1;
        m_clock.clock.step();
    }
    failures.require(!m_clock.clock.isRunning(), "an item still eases after three seconds");
}

void BarItems::paint() {
    QImage image(100, 22, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    for (const auto& item : m_items)
        item->paint(painter);
}

} // namespace orvelle::soak
