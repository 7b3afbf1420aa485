#pragma once

#include "shell/wayland/fake_surface.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <vector>

struct wl_client;
struct wl_display;
struct wl_global;

namespace orvelle {

class FakeSeat;

/// Versions that the fake compositor announces; 0 leaves an interface out.
struct FakeOffers {
    std::uint32_t compositor = 5;
    std::uint32_t output = 4;
    std::uint32_t seat = 7;
    std::uint32_t layerShell = 4;
    std::uint32_t viewporter = 1;
    std::uint32_t fractionalScale = 1;
    std::uint32_t xdgOutput = 3;
    std::uint32_t xdgShell = 1;
};

struct FakeOutput {
    wl_global* global = nullptr;
    std::vector<wl_resource*> resources; ///< one for each time that it was bound
    QString name;
    QSize size; ///< in points
    int scale = 1;
    double pixelsPerPoint = 1;
    std::vector<wl_resource*> sizeResources;
};

/// A compositor in the event loop of the test, which shows nothing but remembers what its clients ask for.
class FakeCompositor : public QObject {
    Q_OBJECT

public:
    explicit FakeCompositor(const FakeOffers& offers = {});
    ~FakeCompositor() override;

    /// Connects a client; it takes over the socket that is returned.
    [[nodiscard]] int connectClient();
    void disconnectClient();
    /// While it is stalled the compositor reads nothing.
    void setStalled(bool stalled) { m_readable.setEnabled(!stalled); }
    /// Has the client's surface break a rule of its role.
    static void postError(const FakeSurface& surface, std::uint32_t code);

    FakeOutput& addOutput(const QString& name, const QSize& size, double pixelsPerPoint = 1);
    void removeOutput(FakeOutput& output, bool closesSurfaces = true);
    static void setScale(FakeOutput& output, double pixelsPerPoint);

    [[nodiscard]] FakeSeat& seat() { return *m_seat; }
    void removeSeat();

    /// All surfaces with a role in a layer that exist.
    [[nodiscard]] std::vector<FakeSurface*> layerSurfaces() const;
    /// The first of them that reserves space and has a picture; null when there is none.
    [[nodiscard]] FakeSurface* strip() const;
    void configure(FakeSurface& surface, const QSize& size);
    static void close(const FakeSurface& surface);
    /// `parts` are 120th parts of a pixel.
    static void preferScale(const FakeSurface& surface, std::uint32_t parts);
    void releaseBuffers();

    // How the compositor behaves.
    /// Answers the first commit of a surface with a role; tells it the size of its output by default.
    std::function<void(FakeSurface&)> answer = [this](FakeSurface& surface) { configureToOutput(surface); };
    bool keepsBuffers = false;     ///< until releaseBuffers()
    bool repeatsConfigure = false; ///< after each picture
    bool givesKeyboard = false;    ///< to each surface that asks for it, with its first picture
    std::uint32_t scaleParts = 0;  ///< sent to every surface that asks for its scale; 0 for none
    int layerSurfaceCount = 0;     ///< how many have ever been made
    int bereftRoleCount = 0;       ///< roles whose surface went first, which ends a real connection

    /// For the implementation.
    void add(std::unique_ptr<FakeSurface> surface) { m_surfaces.push_back(std::move(surface)); }
    void remove(const FakeSurface& surface);
    void endRole(FakeSurface& surface);
    void commit(FakeSurface& surface);
    [[nodiscard]] FakeOutput* outputOf(wl_resource* resource) const;
    [[nodiscard]] wl_display* display() const { return m_display; }

private:
    void configureToOutput(FakeSurface& surface);
    void takePicture(FakeSurface& surface);
    void dispatch();

    wl_display* m_display;
    QSocketNotifier m_readable;
    wl_client* m_client = nullptr;
    std::uint32_t m_outputVersion;
    std::vector<std::unique_ptr<FakeOutput>> m_outputs;
    std::vector<std::unique_ptr<FakeSurface>> m_surfaces;
    std::unique_ptr<FakeSeat> m_seat;
    std::vector<std::uint32_t> m_keptBuffers; ///< numbers of objects, which may have gone
};

} // namespace orvelle
