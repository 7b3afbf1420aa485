#pragma once

#include <Foundation/Foundation.h>

#include <QString>

#include <utility>

/// The border to the system's objects: who owns them, in code that counts references by hand as everything in
/// this folder does, and texts from one side to the other.
namespace orvelle {

/// Owns one reference to an object and gives it back exactly once. `Object` is a pointer to its class, for
/// example `NSMenu*`.
template <class Object> class Retained {
  public:
    Retained() = default;
    /// Takes over the reference that `alloc` gave.
    explicit Retained(Object object) : m_object(object) {}
    /// Adds a reference to an object of another owner.
    [[nodiscard]] static Retained adding(Object object) {
        const id added = object;
        return Retained(static_cast<Object>([added retain]));
    }
    ~Retained() { [m_object release]; }
    Retained(Retained&& other) noexcept : m_object(std::exchange(other.m_object, id(nil))) {}
    Retained& operator=(Retained&& other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }
    Retained(const Retained&) = delete;
    Retained& operator=(const Retained&) = delete;

    [[nodiscard]] Object get() const { return static_cast<Object>(m_object); }
    explicit operator bool() const { return m_object != nil; }

  private:
    id m_object = nil; // so that the class need not be known here
};

/// Gives back at its end every object that was lent while it lived. What a timer of Qt does needs one of its
/// own: the pool of the main loop waits for the next event of the user, which may be hours away.
class ReleasePool {
  public:
    ReleasePool() = default;
    ~ReleasePool() { [m_pool release]; }
    ReleasePool(const ReleasePool&) = delete;
    ReleasePool& operator=(const ReleasePool&) = delete;

  private:
    NSAutoreleasePool* m_pool = [[NSAutoreleasePool alloc] init];
};

/// The text for the system, lent until the pool ends.
[[nodiscard]] NSString* systemText(const QString& text);

/// The text of the system; null when there is none.
[[nodiscard]] QString qtText(NSString* text);

} // namespace orvelle
