#include "shell/painted/painted_settings_window.h"

#include "shell/painted/window_frame.h"
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

PaintedSettingsWindow::PaintedSettingsWindow(std::unique_ptr<QWindow> content,
                                             std::unique_ptr<SettingsStorage> storage,
                                             std::function<void(QWindow&)> bringToUser, Placing placing)
    : m_content(std::move(content))
    , m_storage(std::move(storage))
    , m_bringToUser(std::move(bringToUser))
    , m_placing(placing) {
    m_content->setTitle(QStringLiteral("Orvelle Settings"));
    m_content->setIcon(programIcon());
    m_content->setFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    m_content->installEventFilter(this);
    connect(m_content.get(), &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            closed();
    });
    m_restDelay.setSingleShot(true);
    m_restDelay.setInterval(restTime);
    connect(&m_restDelay, &QTimer::timeout, this, &PaintedSettingsWindow::remember);
    place();
}

PaintedSettingsWindow::~PaintedSettingsWindow() {
    m_content->removeEventFilter(this);
    m_content->disconnect(this);
    if (m_content->isVisible())
        remember();
}

void PaintedSettingsWindow::bringForward() {
    if (!m_content->isVisible()) {
        place();
        m_isPainted = false;
        m_content->show();
    } else {
        m_content->setWindowStates(m_content->windowStates() & ~Qt::WindowMinimized);
        m_bringToUser(*m_content);
    }
    m_content->raise();
    m_content->requestActivate();
}

bool PaintedSettingsWindow::eventFilter(QObject* watched, QEvent* event) {
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
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// Before the window is shown: moves it to its last frame, or to the middle of the first screen.
void PaintedSettingsWindow::place() {
    const StoredValues stored = m_storage->read({frameKey()}).value_or(StoredValues());
    const std::optional<QRect> frame = parseFrame(stored.value(frameKey()).toString());
    const QList<QRect> screens = usableScreens();
    if (screens.isEmpty())
        return;
    const QRect placed = frame ? frameOnScreens(*frame, screens, m_content->minimumSize())
                               : centredFrame(m_content->size(), screens.first());
    m_content->resize(placed.size());
    if (m_placing == Placing::byProgram)
        m_content->setFramePosition(placed.topLeft());
    m_remembered = frame.value_or(QRect());
}

/// The content hid itself, or the desktop closed it; it is still in its place.
void PaintedSettingsWindow::closed() {
    m_restDelay.stop();
    remember();
    // The next window is placed as a new one.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!m_content->isVisible())
                m_content->destroy();
        },
        Qt::QueuedConnection);
}

void PaintedSettingsWindow::remember() {
    // A window that is minimized or maximized is not where the user put it.
    if (m_content->windowStates() != Qt::WindowNoState)
        return;
    const QPoint position =
        m_placing == Placing::byProgram ? m_content->framePosition() : m_remembered.topLeft();
    const QRect frame(position, m_content->size());
    if (frame != m_remembered && m_storage->write({{frameKey(), frameText(frame)}}) == SaveResult::saved)
        m_remembered = frame;
}

} // namespace orvelle
