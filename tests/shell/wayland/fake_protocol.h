#pragma once

#include <cstdint>

struct wl_client;
struct wl_global;
struct wl_resource;

/// How the fake compositor answers the requests of its client.
namespace orvelle {

class FakeCompositor;
struct FakeOutput;

void offerCompositor(FakeCompositor& compositor, std::uint32_t version);
void offerLayerShell(FakeCompositor& compositor, std::uint32_t version);
void offerViewporter(FakeCompositor& compositor, std::uint32_t version);
void offerFractionalScale(FakeCompositor& compositor, std::uint32_t version);
void offerXdgOutput(FakeCompositor& compositor, std::uint32_t version);
/// It refuses every window.
void offerXdgShell(FakeCompositor& compositor, std::uint32_t version);

/// Tells an object of xdg-output the size in points.
void describeSize(wl_resource* resource, const FakeOutput& output);

/// For requests named `destroy` or `release`.
void destroyResource(wl_client* client, wl_resource* resource);

} // namespace orvelle
