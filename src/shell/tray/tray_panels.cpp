#include "shell/tray/tray_panels.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace orvelle {
namespace {

/// Of every panel.
constexpr QSize panelSize(320, 500);

/// The longest time between the press on an icon and the click that a tray reports.
constexpr double longestClickSeconds = 0.5;

/// The direction in which keys move between tabs on most desktops; 0 for other keys.
int tabStep(const QKeyEvent& key) {
    if (!key.modifiers().testFlag(Qt::ControlModifier))
        return 0;
    switch (key.key()) {
    case Qt::Key_Tab:
        return key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1;
    case Qt::Key_Backtab:
    case Qt::Key_PageUp:
        return -1;
    case Qt::Key_PageDown:
        return 1;
    default:
        return 0;
    }
}

} // namespace

TrayPanels::TrayPanels(TrayWindows windows, const AnimationClock& clock)
    : m_windows(std::move(windows))
    , m_clock(clock)
    , m_strip(m_windows.makeStrip) {}

void TrayPanels::setHasTabs(bool hasTabs) {
    m_hasTabs = hasTabs;
    popupChanged();
}

std::unique_ptr<Popover> TrayPanels::makePopover(PopoverContent makeContent) {
    const auto makeWatchedContent = [this, makeContent = std::move(makeContent)](double cornerRadius) {
        std::unique_ptr<QWindow> content = makeContent(cornerRadius);
        if (content != nullptr)
            content->installEventFilter(this);
        return content;
    };
    TrayStage& stage = *this;
    return std::make_unique<TrayPopover>(
        stage, tabs(), m_kept, m_windows.makePopup, makeWatchedContent,
        TrayPopover::Events{
            [this](const QString& identifier) { m_lastShown = identifier; },
            [this](const QString& identifier) { m_vanished = Vanished{identifier, m_clock.now()}; }});
}

std::unique_ptr<ContextMenu> TrayPanels::makeContextMenu() {
    TrayStage& stage = *this;
    return std::make_unique<TrayContextMenu>(stage, tabs(), m_windows.makePopup);
}

void TrayPanels::remove(TrayPopover& popover) {
    std::erase(m_popovers, &popover);
    popupChanged();
}

void TrayPanels::remove(TrayContextMenu& menu) {
    std::erase(m_menus, &menu);
    popupChanged();
}

void TrayPanels::chooseScreen(const QPoint& click) {
    const QList<QScreen*> screens = QGuiApplication::screens(); // the primary one first
    QList<QRect> geometries;
    for (const QScreen* present : screens)
        geometries.append(present->geometry());
    m_screen = screens.value(clickedScreen(geometries, m_windows.cursorPosition(), click));
}

QString TrayPanels::shownItem() const {
    const auto shown = std::ranges::find_if(m_popovers, &TrayPopover::isShown);
    return shown == m_popovers.end() ? QString() : (*shown)->identifier();
}

bool TrayPanels::hasJustVanished(const QString& identifier) const {
    return m_vanished && (identifier.isEmpty() || m_vanished->identifier == identifier) &&
           m_clock.now() - m_vanished->moment < longestClickSeconds;
}

QScreen& TrayPanels::screen() const {
    return m_screen.isNull() ? *QGuiApplication::primaryScreen() : *m_screen;
}

TrayPlaces TrayPanels::places(const QSize& panel) const {
    const QScreen& shown = screen();
    return trayPlaces({shown.geometry(), shown.availableGeometry()},
                      m_hasTabs ? m_strip.wantedSize() : QSize(), panel);
}

QRect TrayPanels::placeOf(const QRect& wanted) const {
    const bool isUnderTab = m_strip.isShown() && wanted.size() != panelSize;
    return isUnderTab ? wanted : places(wanted.size()).panel;
}

QRect TrayPanels::sparedRectangle() const {
    return places(panelSize).strip;
}

void TrayPanels::popupOpens() {
    updateStrip(); // the tabs before the panel, which takes the keyboard
}

void TrayPanels::popupChanged() {
    if (!std::exchange(m_isUpdateDue, true)) // later, because one panel may be closing for another
        QMetaObject::invokeMethod(this, &TrayPanels::updateStrip, Qt::QueuedConnection);
}

bool TrayPanels::hasShownPopup() const {
    return std::ranges::any_of(m_popovers, &TrayPopover::isShown) ||
           std::ranges::any_of(m_menus, &TrayContextMenu::isShown);
}

void TrayPanels::updateStrip() {
    m_isUpdateDue = false;
    const QRect strip = places(panelSize).strip;
    m_strip.select(shownItem());
    if (hasShownPopup() && !strip.isEmpty())
        m_strip.show(screen(), strip);
    else
        m_strip.hide();
}

bool TrayPanels::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && m_hasTabs) {
        if (const int step = tabStep(*static_cast<QKeyEvent*>(event)); step != 0) {
            Q_EMIT neighbourWanted(step);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvelle
