#include "shell/wayland/fake_compositor.h"

#include "shell/wayland/fake_protocol.h"
#include "shell/wayland/fake_seat.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <array>
#include <cmath>
#include <fractional-scale-v1-server-protocol.h>
#include <sys/socket.h>
#include <wayland-server.h>
#include <wlr-layer-shell-unstable-v1-server-protocol.h>

namespace orvelle {
namespace {

const struct wl_output_interface outputFunctions{destroyResource};

FakeOutput& fakeOutputOf(wl_resource* resource) {
    return *static_cast<FakeOutput*>(wl_resource_get_user_data(resource));
}

void describe(wl_resource* resource, const FakeOutput& output) {
    const int version = wl_resource_get_version(resource);
    wl_output_send_geometry(resource, 0, 0, 300, 200, WL_OUTPUT_SUBPIXEL_UNKNOWN, "make", "model",
                            WL_OUTPUT_TRANSFORM_NORMAL);
    if (version >= WL_OUTPUT_SCALE_SINCE_VERSION)
        wl_output_send_scale(resource, output.scale);
    if (version >= WL_OUTPUT_NAME_SINCE_VERSION)
        wl_output_send_name(resource, qPrintable(output.name));
    const QSize pixels = (QSizeF(output.size) * output.pixelsPerPoint).toSize();
    wl_output_send_mode(resource, WL_OUTPUT_MODE_CURRENT, pixels.width(), pixels.height(), 60'000);
    if (version >= WL_OUTPUT_DONE_SINCE_VERSION)
        wl_output_send_done(resource);
}

void bindOutput(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
    auto& output = *static_cast<FakeOutput*>(data);
    wl_resource* resource = wl_resource_create(client, &wl_output_interface, static_cast<int>(version), id);
    wl_resource_set_implementation(resource, &outputFunctions, data, [](wl_resource* ended) {
        std::erase(fakeOutputOf(ended).resources, ended);
    });
    output.resources.push_back(resource);
    describe(resource, output);
}

} // namespace

FakeCompositor::FakeCompositor(const FakeOffers& offers)
    : m_display(wl_display_create())
    , m_readable(wl_event_loop_get_fd(wl_display_get_event_loop(m_display)), QSocketNotifier::Read)
    , m_outputVersion(offers.output)
    , m_seat(std::make_unique<FakeSeat>(m_display, offers.seat)) {
    wl_display_init_shm(m_display);
    offerCompositor(*this, offers.compositor);
    offerLayerShell(*this, offers.layerShell);
    offerViewporter(*this, offers.viewporter);
    offerFractionalScale(*this, offers.fractionalScale);
    offerXdgOutput(*this, offers.xdgOutput);
    offerXdgShell(*this, offers.xdgShell);
    connect(&m_readable, &QSocketNotifier::activated, this, &FakeCompositor::dispatch);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            [this] { wl_display_flush_clients(m_display); });
}

FakeCompositor::~FakeCompositor() {
    m_readable.setEnabled(false);
    wl_display_destroy_clients(m_display);
    m_seat.reset();
    wl_display_destroy(m_display);
}

void FakeCompositor::dispatch() {
    wl_event_loop_dispatch(wl_display_get_event_loop(m_display), 0);
    wl_display_flush_clients(m_display);
}

int FakeCompositor::connectClient() {
    std::array<int, 2> sockets{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0)
        qFatal("no sockets");
    m_client = wl_client_create(m_display, sockets[0]);
    return sockets[1];
}

void FakeCompositor::disconnectClient() {
    wl_client_destroy(m_client);
}

void FakeCompositor::postError(const FakeSurface& surface, std::uint32_t code) {
    wl_resource_post_error(surface.layerResource, code, "a rule is broken");
}

FakeOutput& FakeCompositor::addOutput(const QString& name, const QSize& size, double pixelsPerPoint) {
    m_outputs.push_back(std::make_unique<FakeOutput>());
    FakeOutput& output = *m_outputs.back();
    output.name = name;
    output.size = size;
    output.pixelsPerPoint = pixelsPerPoint;
    output.scale = static_cast<int>(std::ceil(pixelsPerPoint));
    output.global = wl_global_create(m_display, &wl_output_interface, static_cast<int>(m_outputVersion),
                                     &output, bindOutput);
    return output;
}

void FakeCompositor::removeOutput(FakeOutput& output, bool closesSurfaces) {
    for (const auto& surface : m_surfaces) {
        if (surface->output != &output)
            continue;
        surface->output = nullptr;
        if (surface->layerResource != nullptr && closesSurfaces)
            close(*surface);
    }
    wl_global_destroy(output.global);
    std::vector<wl_resource*> resources = output.resources;
    resources.insert(resources.end(), output.sizeResources.begin(), output.sizeResources.end());
    for (wl_resource* resource : resources) {
        wl_resource_set_destructor(resource, nullptr);
        wl_resource_set_user_data(resource, nullptr);
    }
    std::erase_if(m_outputs, [&output](const auto& present) { return present.get() == &output; });
}

void FakeCompositor::setScale(FakeOutput& output, double pixelsPerPoint) {
    output.size = (QSizeF(output.size) * output.pixelsPerPoint / pixelsPerPoint).toSize();
    output.pixelsPerPoint = pixelsPerPoint;
    output.scale = static_cast<int>(std::ceil(pixelsPerPoint));
    for (wl_resource* resource : output.sizeResources)
        describeSize(resource, output);
    for (wl_resource* resource : output.resources)
        describe(resource, output);
}

void FakeCompositor::removeSeat() {
    m_seat.reset();
}

FakeOutput* FakeCompositor::outputOf(wl_resource* resource) const {
    const auto found = std::ranges::find_if(m_outputs, [resource](const auto& output) {
        return std::ranges::count(output->resources, resource) > 0;
    });
    return found == m_outputs.end() ? nullptr : found->get();
}

std::vector<FakeSurface*> FakeCompositor::layerSurfaces() const {
    std::vector<FakeSurface*> surfaces;
    for (const auto& surface : m_surfaces) {
        if (surface->layerResource != nullptr)
            surfaces.push_back(surface.get());
    }
    return surfaces;
}

FakeSurface* FakeCompositor::strip() const {
    const auto found = std::ranges::find_if(
        m_surfaces, [](const auto& surface) { return surface->isMapped() && surface->exclusiveZone > 0; });
    return found == m_surfaces.end() ? nullptr : found->get();
}

void FakeCompositor::remove(const FakeSurface& surface) {
    if (surface.layerResource != nullptr)
        ++bereftRoleCount;
    for (wl_resource* resource : {surface.layerResource, surface.fractionalScale}) {
        if (resource != nullptr)
            wl_resource_set_destructor(resource, nullptr);
    }
    std::erase_if(m_surfaces, [&surface](const auto& present) { return present.get() == &surface; });
}

void FakeCompositor::endRole(FakeSurface& surface) {
    surface.layerResource = nullptr;
    // From 6.11 on Qt keeps the surface of a hidden window, which may get a role again.
    surface.pictures = 0;
    surface.acknowledged = 0;
    if (m_seat && m_seat->isFocused(surface))
        m_seat->focus(nullptr);
}

void FakeCompositor::commit(FakeSurface& surface) {
    ++surface.commits;
    if (surface.pendingBuffer != nullptr)
        takePicture(surface);
    else if (surface.layerResource != nullptr && surface.pictures == 0 && answer)
        answer(surface);
}

void FakeCompositor::takePicture(FakeSurface& surface) {
    wl_resource* resource = std::exchange(surface.pendingBuffer, nullptr);
    wl_shm_buffer* buffer = wl_shm_buffer_get(resource);
    const bool hasAlpha = wl_shm_buffer_get_format(buffer) == WL_SHM_FORMAT_ARGB8888;
    wl_shm_buffer_begin_access(buffer);
    surface.picture =
        QImage(static_cast<const uchar*>(wl_shm_buffer_get_data(buffer)), wl_shm_buffer_get_width(buffer),
               wl_shm_buffer_get_height(buffer), wl_shm_buffer_get_stride(buffer),
               hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32)
            .copy();
    wl_shm_buffer_end_access(buffer);
    surface.damage = std::exchange(surface.pendingDamage, {});
    ++surface.pictures;
    if (surface.layerResource != nullptr && surface.acknowledged == 0)
        surface.wasPaintedTooEarly = true;
    if (givesKeyboard && surface.pictures == 1 &&
        surface.keyboard == ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE)
        m_seat->focus(&surface);
    if (keepsBuffers)
        m_keptBuffers.push_back(wl_resource_get_id(resource));
    else
        wl_buffer_send_release(resource);
    if (repeatsConfigure && surface.layerResource != nullptr)
        configureToOutput(surface);
}

void FakeCompositor::releaseBuffers() {
    for (const std::uint32_t id : std::exchange(m_keptBuffers, {})) {
        if (wl_resource* buffer = wl_client_get_object(m_client, id))
            wl_buffer_send_release(buffer);
    }
}

void FakeCompositor::configureToOutput(FakeSurface& surface) {
    if (surface.output == nullptr)
        return;
    const QSize size = surface.output->size;
    configure(surface,
              QSize(size.width(),
                    surface.requestedSize.height() == 0 ? size.height() : surface.requestedSize.height()));
}

void FakeCompositor::configure(FakeSurface& surface, const QSize& size) {
    zwlr_layer_surface_v1_send_configure(surface.layerResource, wl_display_next_serial(m_display),
                                         static_cast<std::uint32_t>(size.width()),
                                         static_cast<std::uint32_t>(size.height()));
}

void FakeCompositor::close(const FakeSurface& surface) {
    zwlr_layer_surface_v1_send_closed(surface.layerResource);
}

void FakeCompositor::preferScale(const FakeSurface& surface, std::uint32_t parts) {
    wp_fractional_scale_v1_send_preferred_scale(surface.fractionalScale, parts);
}

} // namespace orvelle
