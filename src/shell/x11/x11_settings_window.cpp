#include "shell/x11/x11_settings_window.h"

#include "shell/desktop.h"
#include "shell/open_log.h"
#include "shell/painted/state_file.h"
#include "shell/painted/window_frame.h"
#include "shell/x11/ewmh_hints.h"
#include "theme/symbols.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

#include <chrono>
#include <utility>

namespace orvelle {
namespace {

constexpr std::chrono::milliseconds restTime{500};

QString frameKey() {
    return QStringLiteral("OrvelleSettings");
}

QList<QRect> usableScreens() {
    QList<QRect> areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.append(screen->availableGeometry());
    return areas;
}

} // namespace

X11SettingsWindow::X11SettingsWindow(std::unique_ptr<QWindow> content,
                                     std::unique_ptr<SettingsStorage> storage)
    : m_content(std::move(content))
    , m_storage(std::move(storage)) {
    m_content->setTitle(QStringLiteral("Orvelle Settings"));
    m_content->setIcon(programIcon());
    m_content->setFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    m_content->installEventFilter(this);
    m_restDelay.setSingleShot(true);
    m_restDelay.setInterval(restTime);
    connect(&m_restDelay, &QTimer::timeout, this, &X11SettingsWindow::remember);
    place();
}

X11SettingsWindow::~X11SettingsWindow() {
    m_content->removeEventFilter(this);
    remember();
}

void X11SettingsWindow::bringForward() {
    if (!m_content->isVisible()) {
        place();
        m_isPainted = false;
        m_content->show();
    } else {
        m_content->setWindowStates(m_content->windowStates() & ~Qt::WindowMinimized);
        bringToThisDesktop();
    }
    m_content->raise();
    m_content->requestActivate();
}

bool X11SettingsWindow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (m_content->isVisible())
            m_restDelay.start();
        break;
    case QEvent::Expose:
        // The window paints when it handles the event, which is after this filter.
        if (m_content->isExposed() && !std::exchange(m_isPainted, true))
            QMetaObject::invokeMethod(
                this, [] { qCDebug(openLog, "the settings window was painted"); }, Qt::QueuedConnection);
        break;
    case QEvent::Close:
        m_restDelay.stop();
        remember();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// Before it is shown: where it stood the last time, or in the middle of the first screen.
void X11SettingsWindow::place() {
    const StoredValues stored = m_storage->read({frameKey()}).value_or(StoredValues());
    const std::optional<QRect> frame = parseFrame(stored.value(frameKey()).toString());
    const QList<QRect> screens = usableScreens();
    if (screens.isEmpty())
        return;
    const QRect placed = frame ? frameOnScreens(*frame, screens, m_content->minimumSize())
                               : centredFrame(m_content->size(), screens.first());
    m_content->resize(placed.size());
    m_content->setFramePosition(placed.topLeft());
    m_remembered = frame.value_or(QRect());
}

void X11SettingsWindow::remember() {
    // A window that is minimized, or as large as the screen, does not stand where the user put it.
    if (!m_content->isVisible() || m_content->windowStates() != Qt::WindowNoState)
        return;
    const QRect frame(m_content->framePosition(), m_content->size());
    if (frame != m_remembered && m_storage->write({{frameKey(), frameText(frame)}}) == SaveResult::saved)
        m_remembered = frame;
}

void X11SettingsWindow::bringToThisDesktop() const {
    if (const EwmhHints* hints = EwmhHints::shared())
        hints->moveToPresentDesktop(static_cast<xcb_window_t>(m_content->winId()));
}

std::unique_ptr<SettingsWindow> makeSettingsWindow(std::unique_ptr<QWindow> content) {
    return std::make_unique<X11SettingsWindow>(std::move(content), openStateFile());
}

} // namespace orvelle
