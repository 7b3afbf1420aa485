#pragma once

/// What fills the tables of functions that a Wayland connection calls for each event. An event whose place in
/// the table stays empty must not exist in the version that is bound.
namespace orvelle {

template <class Proxy, class... Arguments>
using EventFunction = void (*)(void* data, Proxy* proxy, Arguments... arguments);

/// A function that does nothing.
struct IgnoredEvent {
    template <class Proxy, class... Arguments>
    constexpr operator EventFunction<Proxy, Arguments...>() const {
        return [](void*, Proxy*, Arguments...) {};
    }
};
inline constexpr IgnoredEvent ignoredEvent;

template <auto method>
struct EventHandler;

/// A function that calls a member function of the listener's data with the arguments of the event.
template <class Object, class... Parameters, void (Object::*method)(Parameters...)>
struct EventHandler<method> {
    template <class Proxy, class... Arguments>
    constexpr operator EventFunction<Proxy, Arguments...>() const {
        return [](void* data, Proxy*, Arguments... arguments) {
            (static_cast<Object*>(data)->*method)(arguments...);
        };
    }
};
template <auto method>
inline constexpr EventHandler<method> onEvent;

} // namespace orvelle
