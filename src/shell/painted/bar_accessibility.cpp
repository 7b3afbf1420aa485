#include "shell/painted/bar_accessibility.h"

#include "shell/painted/bar_window.h"

namespace orvelle {
namespace {

class ItemButton final : public PaintedPart {
public:
    ItemButton(BarWindow& bar, BarItem& item)
        : PaintedPart(bar)
        , m_bar(bar)
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
        return isValid() ? m_bar.desktopBounds(m_item).toAlignedRect() : QRect();
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (!isValid())
            return state;
        state.invisible = !m_bar.isVisible();
        state.focusable = true;
        state.focused = m_item.identifier() == m_bar.focusedItem();
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
    BarWindow& m_bar; // this and the next are not there when the interface is not valid
    BarItem& m_item;
};

class ToolBar final : public PaintedWindow {
public:
    explicit ToolBar(BarWindow& bar)
        : PaintedWindow(bar)
        , m_bar(bar) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ToolBar; }
    [[nodiscard]] int childCount() const override { return static_cast<int>(m_bar.items().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount()
                   ? button(m_bar.items()[static_cast<std::size_t>(index)].get())
                   : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        return button(m_bar.itemAt(QPoint(x, y) - m_bar.position()));
    }

private:
    [[nodiscard]] QAccessibleInterface* button(BarItem* item) const {
        if (item == nullptr)
            return nullptr;
        return &item->accessible().getOrMake([this, item] { return new ItemButton(m_bar, *item); });
    }

    BarWindow& m_bar;
};

QAccessibleInterface* makeToolBar(const QString& /*className*/, QObject* object) {
    auto* bar = qobject_cast<BarWindow*>(object);
    return bar == nullptr ? nullptr : new ToolBar(*bar);
}

} // namespace

void installBarAccessibility() {
    QAccessible::installFactory(makeToolBar);
}

} // namespace orvelle
