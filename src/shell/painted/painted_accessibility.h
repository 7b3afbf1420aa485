#pragma once

#include <QAccessibleInterface>
#include <QAccessibleObject>

class QWindow;

/// What assistive programs see of a window that is painted by hand: the window itself and the parts that are
/// painted in it, which are no objects of their own. Nothing here exists before an assistive program asks,
/// and nothing is announced that nobody has asked about. Main thread only.
namespace orvelle {

/// Whether an assistive program listens.
[[nodiscard]] bool hasAssistiveListener();
/// Tells assistive programs what happened to an interface. Only for when there is a listener, because Qt
/// gives the interface a number, and keeps it, for the purpose.
void announce(QAccessibleInterface& interface, QAccessible::Event type);

using AnnouncementHandler = void (*)(QAccessibleEvent&);
/// For tests: hears all announcements in the place of assistive programs, as long as it is set.
void setAnnouncementHandler(AnnouncementHandler handler);

/// A part of a painted window: a leaf with actions. Once the part has gone the interface is no longer valid
/// and answers nothing, but it lives until the present event has been handled: the program that asked may be
/// in the middle of an action that removed the part.
class PaintedPart : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    explicit PaintedPart(QWindow& window)
        : m_window(&window) {}

    [[nodiscard]] bool isValid() const final { return m_window != nullptr; }
    /// The part has gone.
    void invalidate() { m_window = nullptr; }

    /// Announces what `text(QAccessible::Description)` says by now, if it says something else than when it
    /// was last announced.
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

/// Belongs to a part and holds its interface from the first time that it is asked for until the part goes.
class PaintedPartHolder {
public:
    PaintedPartHolder() = default;
    ~PaintedPartHolder();
    PaintedPartHolder(const PaintedPartHolder&) = delete;
    PaintedPartHolder& operator=(const PaintedPartHolder&) = delete;

    /// Null when nobody has asked for the interface yet.
    [[nodiscard]] PaintedPart* get() const;

    /// The interface, made by `make`, which returns a new one, when there is none yet.
    template <class Make>
    [[nodiscard]] PaintedPart& getOrMake(Make make) {
        if (PaintedPart* present = get())
            return *present;
        return hold(make());
    }

private:
    PaintedPart& hold(PaintedPart* part);

    QAccessible::Id m_id = 0; ///< Qt owns the interface under this number; 0 for none
};

/// A painted window, a child of the application.
class PaintedWindow : public QAccessibleObject {
public:
    explicit PaintedWindow(QWindow& window);

    [[nodiscard]] QWindow* window() const final;
    [[nodiscard]] QAccessibleInterface* parent() const final;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const final;
    [[nodiscard]] QRect rect() const final;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
};

} // namespace orvelle
