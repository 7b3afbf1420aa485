#include "shell/painted/painted_accessibility.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace orvelle {
namespace {

AnnouncementHandler announcementHandler = nullptr;

void announce(QAccessibleEvent& event) {
    if (announcementHandler != nullptr)
        announcementHandler(event);
    else
        QAccessible::updateAccessibility(&event);
}

} // namespace

bool hasAssistiveListener() {
    return announcementHandler != nullptr || QAccessible::isActive();
}

void announce(QAccessibleInterface& interface, QAccessible::Event type) {
    QAccessibleEvent event(&interface, type);
    announce(event);
}

void setAnnouncementHandler(AnnouncementHandler handler) {
    announcementHandler = handler;
}

void PaintedElement::announceDescription() {
    if (!hasAssistiveListener())
        return;
    const QString description = text(QAccessible::Description);
    if (std::exchange(m_announcedDescription, description) != description)
        announce(*this, QAccessible::DescriptionChanged);
}

void PaintedElement::announceState(QAccessible::State changed) {
    if (!hasAssistiveListener())
        return;
    QAccessibleStateChangeEvent event(this, changed);
    announce(event);
}

QAccessibleInterface* PaintedElement::parent() const {
    return isValid() ? QAccessible::queryAccessibleInterface(m_window) : nullptr;
}

void* PaintedElement::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

PaintedElementHolder::~PaintedElementHolder() {
    PaintedElement* element = get();
    if (element == nullptr)
        return;
    if (hasAssistiveListener())
        announce(*element, QAccessible::ObjectDestroyed);
    element->invalidate();
    QMetaObject::invokeMethod(
        qGuiApp, [id = m_id] { QAccessible::deleteAccessibleInterface(id); }, Qt::QueuedConnection);
}

PaintedElement* PaintedElementHolder::get() const {
    return m_id == 0 ? nullptr : static_cast<PaintedElement*>(QAccessible::accessibleInterface(m_id));
}

PaintedElement& PaintedElementHolder::hold(PaintedElement* element) {
    m_id = QAccessible::registerAccessibleInterface(element);
    return *element;
}

PaintedWindow::PaintedWindow(QWindow& window)
    : QAccessibleObject(&window) {}

QWindow* PaintedWindow::window() const {
    return qobject_cast<QWindow*>(object());
}

QAccessibleInterface* PaintedWindow::parent() const {
    return QAccessible::queryAccessibleInterface(qGuiApp);
}

int PaintedWindow::indexOfChild(const QAccessibleInterface* wanted) const {
    for (int index = 0; index < childCount(); ++index) {
        if (child(index) == wanted)
            return index;
    }
    return -1;
}

QRect PaintedWindow::rect() const {
    return window()->geometry();
}

QAccessible::State PaintedWindow::state() const {
    QAccessible::State state;
    state.invisible = !window()->isVisible();
    state.active = window()->isActive();
    return state;
}

QString PaintedWindow::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? window()->title() : QString();
}

} // namespace orvelle
