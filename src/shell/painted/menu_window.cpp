#include "shell/painted/menu_window.h"

#include "shell/painted/popup.h"
#include "theme/colors.h"
#include "theme/fonts.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double fontSize = 13;
constexpr int textInset = 10;
constexpr int keysGap = 32; ///< the smallest distance between a title and its keys
constexpr double plateRadius = 5;
constexpr QColor background(40, 40, 43);
constexpr QColor border(255, 255, 255, 40);
constexpr QColor separatorColor(255, 255, 255, 36);
constexpr QColor plateColor(10, 100, 220);

QString keysText(const MenuEntry& entry) {
    return menuKeys(entry).toString(QKeySequence::NativeText);
}

void paintBackground(QPainter& painter, const QSize& size, double pixelsPerPoint) {
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const double line = 1 / pixelsPerPoint;
    painter.setPen(QPen(border, line));
    painter.setBrush(background);
    const double radius = popupCornerRadiusPoints - line / 2;
    painter.drawRoundedRect(QRectF(QPointF(0, 0), size).adjusted(line / 2, line / 2, -line / 2, -line / 2),
                            radius, radius);
}

// Accessibility.

class MenuLine final : public PaintedElement {
public:
    MenuLine(MenuWindow& menu, std::size_t index)
        : PaintedElement(menu)
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
            return keysText(entry());
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

    /// A menu that is not shown keeps its entries, but they cannot be chosen.
    void doAction(const QString& action) override {
        if (actionNames().contains(action) && m_menu.isVisible())
            Q_EMIT m_menu.chosen(m_index);
    }

private:
    [[nodiscard]] const MenuEntry& entry() const { return m_menu.entries()[m_index]; }

    MenuWindow& m_menu; // an invalid interface must not use it: the menu or the entry may be gone
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

bool isSeparator(const MenuEntry& entry) {
    return entry.title.isEmpty();
}

QList<QRect> menuRows(const std::vector<MenuEntry>& entries, int width) {
    QList<QRect> rows;
    int top = menuPaddingPoints;
    for (const MenuEntry& entry : entries) {
        const int height = isSeparator(entry) ? menuSeparatorPoints : menuRowPoints;
        rows.append(QRect(menuPaddingPoints, top, width - 2 * menuPaddingPoints, height));
        top += height;
    }
    return rows;
}

std::optional<std::size_t> nextEntry(const std::vector<MenuEntry>& entries,
                                     std::optional<std::size_t> current, int step) {
    const std::size_t count = entries.size();
    const std::size_t stride = step > 0 ? 1 : count - 1;
    std::size_t index = current.value_or(step > 0 ? count - 1 : 0);
    for (std::size_t tried = 0; tried < count; ++tried) {
        index = (index + stride) % count;
        if (!isSeparator(entries[index]))
            return index;
    }
    return std::nullopt;
}

QKeySequence menuKeys(const MenuEntry& entry) {
    if (entry.keyEquivalent.isEmpty())
        return {};
    return QKeySequence(QStringLiteral("Ctrl+") + entry.keyEquivalent.toUpper());
}

MenuWindow::MenuWindow() {
    setTitle(QStringLiteral("Orvelle menu"));
    QSurfaceFormat translucent = requestedFormat();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
    QAccessible::installFactory(makePopupMenu); // a second call has no effect
}

void MenuWindow::setEntries(std::vector<MenuEntry> entries) {
    setCurrent(std::nullopt);
    m_accessibleEntries.clear(); // while the old entries are still there to be announced
    m_entries = std::move(entries);
    m_accessibleEntries = std::vector<PaintedElementHolder>(m_entries.size());
    update();
}

QSize MenuWindow::wantedSize() const {
    const QFontMetricsF metrics(systemFont(fontSize));
    double width = 0;
    for (const MenuEntry& entry : m_entries) {
        const double keys = metrics.horizontalAdvance(keysText(entry));
        width = std::max(width, metrics.horizontalAdvance(entry.title) + (keys > 0 ? keysGap + keys : 0));
    }
    const int wholeWidth = static_cast<int>(std::ceil(width)) + 2 * (textInset + menuPaddingPoints);
    const QList<QRect> rows = menuRows(m_entries, wholeWidth);
    const int lastBottom = rows.isEmpty() ? menuPaddingPoints : rows.last().y() + rows.last().height();
    return {wholeWidth, lastBottom + menuPaddingPoints};
}

void MenuWindow::setCurrent(std::optional<std::size_t> index) {
    if (std::exchange(m_current, index) == index)
        return;
    update();
    if (index && hasAssistiveListener())
        announce(*accessibleRoot()->child(static_cast<int>(*index)), QAccessible::Focus);
}

QAccessibleInterface* MenuWindow::accessibleRoot() const {
    return QAccessible::queryAccessibleInterface(const_cast<MenuWindow*>(this));
}

void MenuWindow::showEvent(QShowEvent* event) {
    QRasterWindow::showEvent(event);
    if (hasAssistiveListener())
        announce(*accessibleRoot(), QAccessible::PopupMenuStart);
}

void MenuWindow::hideEvent(QHideEvent* event) {
    QRasterWindow::hideEvent(event);
    if (hasAssistiveListener())
        announce(*accessibleRoot(), QAccessible::PopupMenuEnd);
}

std::optional<std::size_t> MenuWindow::entryAt(const QPointF& position) const {
    const QList<QRect> rows = menuRows(m_entries, width());
    for (std::size_t index = 0; index < m_entries.size(); ++index) {
        if (!isSeparator(m_entries[index]) && QRectF(rows[static_cast<qsizetype>(index)]).contains(position))
            return index;
    }
    return std::nullopt;
}

void MenuWindow::mouseMoveEvent(QMouseEvent* event) {
    setCurrent(entryAt(event->position()));
}

void MenuWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton)
        return;
    if (const std::optional<std::size_t> index = entryAt(event->position()))
        Q_EMIT chosen(*index);
}

bool MenuWindow::event(QEvent* event) {
    if (event->type() == QEvent::Leave)
        setCurrent(std::nullopt);
    return QRasterWindow::event(event);
}

void MenuWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Down:
        return setCurrent(nextEntry(m_entries, m_current, 1));
    case Qt::Key_Up:
        return setCurrent(nextEntry(m_entries, m_current, -1));
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_current)
            Q_EMIT chosen(*m_current);
        return;
    default:
        break;
    }
    const QKeySequence keys(event->keyCombination());
    const auto found = std::ranges::find_if(m_entries, [&keys](const MenuEntry& entry) {
        return !entry.keyEquivalent.isEmpty() && menuKeys(entry) == keys;
    });
    if (found != m_entries.end())
        Q_EMIT chosen(static_cast<std::size_t>(found - m_entries.begin()));
}

void MenuWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBackground(painter, size(), devicePixelRatio());
    painter.setFont(systemFont(fontSize));
    const QList<QRect> rows = menuRows(m_entries, width());
    for (std::size_t index = 0; index < m_entries.size(); ++index)
        paintRow(painter, index, rows[static_cast<qsizetype>(index)]);
}

void MenuWindow::paintRow(QPainter& painter, std::size_t index, const QRect& row) const {
    const MenuEntry& entry = m_entries[index];
    const QRect text = row.adjusted(textInset, 0, -textInset, 0);
    if (isSeparator(entry)) {
        painter.fillRect(QRect(text.left(), row.center().y(), text.width(), 1), separatorColor);
        return;
    }
    const bool isCurrent = m_current == index;
    if (isCurrent) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(plateColor);
        painter.drawRoundedRect(row, plateRadius, plateRadius);
    }
    painter.setPen(LabelColors::primary);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, entry.title);
    painter.setPen(isCurrent ? LabelColors::primary : LabelColors::secondary);
    painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, keysText(entry));
}

} // namespace orvelle
