#include "shell/painted/accessible_bar.h"

#include <utility>

namespace orvelle {
namespace {

class ItemButton final : public PaintedElement {
public:
    ItemButton(AccessibleBar& window, BarItem& item)
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
        state.invisible = !m_window.bar().place().isOnScreen;
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
    AccessibleBar& m_window; // this and the next are gone when the interface is not valid
    BarItem& m_item;
};

class ToolBar final : public PaintedWindow {
public:
    explicit ToolBar(AccessibleBar& window)
        : PaintedWindow(window)
        , m_window(window) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ToolBar; }
    [[nodiscard]] QRect rect() const override { return m_window.bar().place().geometry; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = PaintedWindow::state();
        state.invisible = !m_window.bar().place().isOnScreen;
        return state;
    }
    [[nodiscard]] int childCount() const override { return static_cast<int>(m_window.bar().items().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount()
                   ? button(m_window.bar().items()[static_cast<std::size_t>(index)].get())
                   : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        return button(m_window.bar().itemAt(QPoint(x, y) - rect().topLeft()));
    }

private:
    [[nodiscard]] QAccessibleInterface* button(BarItem* item) const {
        if (item == nullptr)
            return nullptr;
        return &item->accessible().getOrMake([this, item] { return new ItemButton(m_window, *item); });
    }

    AccessibleBar& m_window;
};

QAccessibleInterface* makeToolBar(const QString& /*className*/, QObject* object) {
    auto* window = qobject_cast<AccessibleBar*>(object);
    return window == nullptr ? nullptr : new ToolBar(*window);
}

} // namespace

AccessibleBar::AccessibleBar(std::function<BarPlace()> place)
    : m_bar(std::move(place)) {
    setTitle(QStringLiteral("Orvelle"));
    connect(&m_bar, &Bar::itemAdded, this,
            [this](std::size_t index) { announceItem(index, QAccessible::ObjectCreated); });
    connect(&m_bar, &Bar::itemFocused, this,
            [this](std::size_t index) { announceItem(index, QAccessible::Focus); });
    QAccessible::installFactory(makeToolBar); // a second call has no effect
}

QAccessibleInterface* AccessibleBar::accessibleRoot() const {
    return QAccessible::queryAccessibleInterface(const_cast<AccessibleBar*>(this));
}

void AccessibleBar::announceItem(std::size_t index, QAccessible::Event type) {
    if (hasAssistiveListener())
        announce(*accessibleRoot()->child(static_cast<int>(index)), type);
}

} // namespace orvelle
