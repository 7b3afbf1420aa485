#include "app/shell/x11/x11_popover.h"

#include "app/shell/x11/transient_geometry.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QScreen>

namespace orvelle {
namespace {

/// Off by default; QT_LOGGING_RULES="orvelle.open.debug=true" switches it on.
Q_LOGGING_CATEGORY(openLog, "orvelle.open", QtInfoMsg)

} // namespace

X11Popover::X11Popover(BarWindow& bar, PopoverContent makeContent)
    : m_bar(bar)
    , m_makeContent(std::move(makeContent)) {}

bool X11Popover::makeWindow() {
    if (m_window == nullptr)
        m_window = m_makeContent(TransientWindow::cornerRadiusPoints);
    if (m_window == nullptr)
        return false;
    m_size = m_window->size();
    m_transient.emplace(*m_window);
    QObject::connect(&*m_transient, &TransientWindow::closed, &*m_transient, [this] { setItem(nullptr); });
    return true;
}

void X11Popover::show(const StatusItem& item) {
    QElapsedTimer sinceCall;
    sinceCall.start();
    if (!m_transient && !makeWindow())
        return;
    const auto logPainted = [sinceCall, name = item.identifier()] {
        qCDebug(openLog, "the %s panel was painted %.1f ms after it was asked for", qPrintable(name),
                static_cast<double>(sinceCall.nsecsElapsed()) / 1e6);
    };
    QObject::connect(&*m_transient, &TransientWindow::painted, &*m_transient, logPainted,
                     Qt::SingleShotConnection);
    QScreen& screen = *m_bar.screen();
    const QRectF bounds = m_bar.desktopBounds(item);
    m_transient->show(screen, popoverGeometry(bounds, m_size, screen.geometry()), bounds);
    setItem(&item);
}

void X11Popover::setItem(const StatusItem* item) {
    if (m_item != nullptr)
        m_bar.setExpanded(*m_item, false);
    m_item = item;
    if (m_item != nullptr)
        m_bar.setExpanded(*m_item, true);
}

void X11Popover::close() {
    if (m_transient)
        m_transient->close();
}

} // namespace orvelle
