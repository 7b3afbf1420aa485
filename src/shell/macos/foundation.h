#pragma once

#include "settings/release_pool.h"

#include <Foundation/Foundation.h>

#include <QString>

#include <utility>

/// Owners for the system's objects, whose references this folder counts by hand, and conversions of text.
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
    id m_object = nil; // works with a class that is only declared
};

/// The text as the system's type, lent until the pool ends.
[[nodiscard]] NSString* systemText(const QString& text);

/// The system's text as Qt's type; null for nil.
[[nodiscard]] QString qtText(NSString* text);

} // namespace orvelle
