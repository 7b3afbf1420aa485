#include "shell/painted/menu_accessibility.h"

#include "shell/painted/menu_rules.h"
#include "shell/painted/menu_window.h"

namespace orvelle {
namespace {

class MenuLine final : public PaintedPart {
public:
    MenuLine(MenuWindow& menu, std::size_t index)
        : PaintedPart(menu)
        , m_menu(menu)
        , m_index(index) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return isValid() && isSeparator(entry()) ? QAccessible::Separator : QAccessible::MenuItem;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (!isValid())
            return {};
        switch (kind) {
        case QAccessible::Name:
            return entry().title;
        case QAccessible::Accelerator:
            return menuKeys(entry()).toString(QKeySequence::NativeText);
        default:
            return {};
        }
    }

    [[nodiscard]] QRect rect() const override {
        if (!isValid())
            return {};
        const QList<QRect> rows = menuRows(m_menu.entries(), m_menu.width());
        return rows[static_cast<qsizetype>(m_index)].translated(m_menu.position());
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (!isValid())
            return state;
        state.invisible = !m_menu.isVisible();
        state.focusable = !isSeparator(entry());
        state.focused = m_menu.current() == m_index;
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        return isValid() && !isSeparator(entry()) ? QStringList{pressAction()} : QStringList();
    }

    [[nodiscard]] QStringList keyBindingsForAction(const QString& action) const override {
        const QString keys = text(QAccessible::Accelerator);
        return action == pressAction() && !keys.isEmpty() ? QStringList{keys} : QStringList();
    }

    /// A menu that is not shown keeps its entries, but nobody can choose one.
    void doAction(const QString& action) override {
        if (actionNames().contains(action) && m_menu.isVisible())
            Q_EMIT m_menu.chosen(m_index);
    }

private:
    [[nodiscard]] const MenuEntry& entry() const { return m_menu.entries()[m_index]; }

    MenuWindow& m_menu; // it has another entry there, or is gone, when the interface is not valid
    std::size_t m_index;
};

class PopupMenu final : public PaintedWindow {
public:
    explicit PopupMenu(MenuWindow& menu)
        : PaintedWindow(menu)
        , m_menu(menu) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PopupMenu; }
    [[nodiscard]] int childCount() const override { return static_cast<int>(m_menu.entries().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount() ? line(static_cast<std::size_t>(index)) : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        const auto index = m_menu.entryAt(QPoint(x, y) - m_menu.position());
        return index ? line(*index) : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        const std::optional<std::size_t> current = m_menu.current();
        return current ? line(*current) : nullptr;
    }

private:
    [[nodiscard]] QAccessibleInterface* line(std::size_t index) const {
        return &m_menu.accessibleEntry(index).getOrMake(
            [this, index] { return new MenuLine(m_menu, index); });
    }

    MenuWindow& m_menu;
};

QAccessibleInterface* makePopupMenu(const QString& /*className*/, QObject* object) {
    auto* menu = qobject_cast<MenuWindow*>(object);
    return menu == nullptr ? nullptr : new PopupMenu(*menu);
}

} // namespace

void installMenuAccessibility() {
    QAccessible::installFactory(makePopupMenu);
}

} // namespace orvelle
