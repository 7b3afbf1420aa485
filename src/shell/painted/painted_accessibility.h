#pragma once

#include <QAccessibleInterface>
#include <QAccessibleObject>

class QWindow;

/// Interfaces for assistive programs of a window that is painted by hand: of the window itself and of the
/// elements painted in it, which are no QObjects. An interface is made when an assistive program first asks
/// for it, and only interfaces that exist announce changes. Main thread only.
namespace orvelle {

/// Whether an assistive program listens.
[[nodiscard]] bool hasAssistiveListener();
/// Announces to assistive programs what happened to an interface. Only for when there is a listener, because
/// Qt registers the interface for the purpose and keeps it.
void announce(QAccessibleInterface& interface, QAccessible::Event type);

using AnnouncementHandler = void (*)(QAccessibleEvent&);
/// For tests: receives all announcements instead of assistive programs, as long as it is set.
void setAnnouncementHandler(AnnouncementHandler handler);

/// The interface of a painted element: a leaf with actions. When the element goes the interface becomes
/// invalid and answers nothing, but it lives until the current event has been handled, because the element
/// may go during one of the interface's own actions.
class PaintedElement : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    explicit PaintedElement(QWindow& window)
        : m_window(&window) {}

    [[nodiscard]] bool isValid() const final { return m_window != nullptr; }
    /// The element has gone.
    void invalidate() { m_window = nullptr; }

    /// Announces `text(QAccessible::Description)` if it differs from the last announcement.
    void announceDescription();
    void announceState(QAccessible::State changed);

    [[nodiscard]] QObject* object() const final { return nullptr; }
    [[nodiscard]] QWindow* window() const final { return m_window; }
    [[nodiscard]] QAccessibleInterface* parent() const final;
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const final { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const final { return nullptr; }
    [[nodiscard]] int childCount() const final { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const final { return -1; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) final {}
    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) final;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    QWindow* m_window;
    QString m_announcedDescription;
};

/// Owns the interface of an element, from the first request for it until the element goes.
class PaintedElementHolder {
public:
    PaintedElementHolder() = default;
    ~PaintedElementHolder();
    PaintedElementHolder(const PaintedElementHolder&) = delete;
    PaintedElementHolder& operator=(const PaintedElementHolder&) = delete;

    /// Null before the first request.
    [[nodiscard]] PaintedElement* get() const;

    /// The interface, made by `make`, which returns a new one, when there is none yet.
    template <class Make>
    [[nodiscard]] PaintedElement& getOrMake(Make make) {
        if (PaintedElement* present = get())
            return *present;
        return hold(make());
    }

private:
    PaintedElement& hold(PaintedElement* element);

    QAccessible::Id m_id = 0; ///< Qt owns the interface under this number; 0 for none
};

/// A painted window, a child of the application.
class PaintedWindow : public QAccessibleObject {
public:
    explicit PaintedWindow(QWindow& window);

    [[nodiscard]] QWindow* window() const final;
    [[nodiscard]] QAccessibleInterface* parent() const final;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const final;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
};

} // namespace orvelle
