#include "shell/painted/bar_window.h"

#include <QMouseEvent>

#include <utility>

namespace orvelle {
namespace {

class ItemButton final : public PaintedElement {
public:
    ItemButton(BarWindow& window, BarItem& item)
        : PaintedElement(window)
        , m_window(window)
        , m_item(item) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (!isValid())
            return {};
        switch (kind) {
        case QAccessible::Name:
            return m_item.accessibleName();
        case QAccessible::Description: // what AT-SPI asks for
        case QAccessible::Value:
            return m_item.accessibleText();
        default:
            return {};
        }
    }

    [[nodiscard]] QRect rect() const override {
        return isValid() ? m_window.bar().desktopBounds(m_item).toAlignedRect() : QRect();
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (!isValid())
            return state;
        state.invisible = !m_window.isVisible();
        state.focusable = true;
        state.focused = m_item.identifier() == m_window.bar().focusedItem();
        state.hasPopup = true;
        state.pressed = m_item.isHighlighted();
        state.expandable = true;
        state.expanded = m_item.isExpanded();
        state.collapsed = !m_item.isExpanded();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), showMenuAction()}; }

    void doAction(const QString& action) override {
        if (!isValid())
            return;
        if (action == pressAction())
            m_item.click(ClickButton::left);
        else if (action == showMenuAction())
            m_item.click(ClickButton::right);
    }

private:
    BarWindow& m_window; // this and the next are gone when the interface is not valid
    BarItem& m_item;
};

class ToolBar final : public PaintedWindow {
public:
    explicit ToolBar(BarWindow& window)
        : PaintedWindow(window)
        , m_window(window) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ToolBar; }
    [[nodiscard]] int childCount() const override { return static_cast<int>(m_window.bar().items().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount()
                   ? button(m_window.bar().items()[static_cast<std::size_t>(index)].get())
                   : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        return button(m_window.bar().itemAt(QPoint(x, y) - m_window.position()));
    }

private:
    [[nodiscard]] QAccessibleInterface* button(BarItem* item) const {
        if (item == nullptr)
            return nullptr;
        return &item->accessible().getOrMake([this, item] { return new ItemButton(m_window, *item); });
    }

    BarWindow& m_window;
};

QAccessibleInterface* makeToolBar(const QString& /*className*/, QObject* object) {
    auto* window = qobject_cast<BarWindow*>(object);
    return window == nullptr ? nullptr : new ToolBar(*window);
}

} // namespace

BarWindow::BarWindow()
    : m_bar([this] { return BarPlace{screen(), geometry(), devicePixelRatio(), isExposed()}; }) {
    setTitle(QStringLiteral("Orvelle"));
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    connect(this, &QWindow::screenChanged, &m_bar, &Bar::layOut); // its scale may be another
    connect(this, &QWindow::yChanged, &m_bar, &Bar::moved);
    connect(&m_bar, &Bar::repaintWanted, this, &BarWindow::repaintSoon);
    connect(&m_bar, &Bar::itemAdded, this,
            [this](std::size_t index) { announceItem(index, QAccessible::ObjectCreated); });
    connect(&m_bar, &Bar::itemFocused, this,
            [this](std::size_t index) { announceItem(index, QAccessible::Focus); });
    QAccessible::installFactory(makeToolBar); // a second call has no effect
}

QAccessibleInterface* BarWindow::accessibleRoot() const {
    return QAccessible::queryAccessibleInterface(const_cast<BarWindow*>(this));
}

void BarWindow::announceItem(std::size_t index, QAccessible::Event type) {
    if (hasAssistiveListener())
        announce(*accessibleRoot()->child(static_cast<int>(index)), type);
}

void BarWindow::hideEvent(QHideEvent* /*event*/) {
    m_bar.cancelPress(); // the release will not be reported
}

void BarWindow::mousePressEvent(QMouseEvent* event) {
    m_bar.pressMouse(event->position(), event->button());
}

void BarWindow::mouseMoveEvent(QMouseEvent* event) {
    m_bar.moveMouse(event->position());
}

void BarWindow::mouseReleaseEvent(QMouseEvent* event) {
    m_bar.releaseMouse(event->position(), event->button());
}

void BarWindow::resizeEvent(QResizeEvent* /*event*/) {
    m_bar.layOut();
}

void BarWindow::paintEvent(QPaintEvent* /*event*/) {
    // Only some platforms give the event's region in local coordinates, so everything is painted.
    m_pending = QRegion();
    repaint(QRect(QPoint(0, 0), size()));
}

void BarWindow::repaintSoon(const QRect& rectangle) {
    if (m_pending.isEmpty())
        QMetaObject::invokeMethod(this, &BarWindow::repaintPending, Qt::QueuedConnection);
    m_pending += rectangle;
}

void BarWindow::repaintPending() {
    const QRegion region = std::exchange(m_pending, QRegion());
    // A window that is not on the screen is painted whole when it comes there.
    if (isExposed() && !region.isEmpty())
        repaint(region);
}

void BarWindow::repaint(const QRegion& region) {
    m_picture.resize(size());
    m_picture.beginPaint(region);
    QPainter painter(m_picture.paintDevice());
    m_bar.paint(painter, region);
    painter.end();
    m_picture.endPaint();
    m_picture.flush(region);
    Q_EMIT painted();
}

} // namespace orvelle
