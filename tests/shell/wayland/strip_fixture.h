#pragma once

#include "shell/wayland/fake_compositor.h"
#include "shell/wayland/fake_seat.h"
#include "shell/wayland/wayland_strip.h"
#include "support/frames.h"

#include <gtest/gtest.h>

#include <optional>

namespace orvelle {

/// A strip on a fake compositor. A test sets up the compositor, then starts the strip.
class StripTest : public ::testing::Test {
protected:
    explicit StripTest(const FakeOffers& offers = {})
        : compositor(offers) {}

    void start() {
        socket = compositor.connectClient();
        strip.emplace(WaylandConnection::overSocket(socket));
        cpu = &addItem(QStringLiteral("cpu"), Qt::red, cpuPaints);
        memory = &addItem(QStringLiteral("memory"), Qt::blue, memoryPaints);
    }
    [[nodiscard]] bool waitForStrip() {
        return waitUntil([this] { return compositor.strip() != nullptr; });
    }
    /// Handles what is on its way between the strip and the compositor.
    static void settleBoth() {
        constexpr int turns = 10;
        for (int turn = 0; turn < turns; ++turn)
            QTest::qWait(1);
    }
    BarItem& addItem(const QString& name, const QColor& color, int& paints) {
        BarItem& item = strip->bar().addItem(name, 60);
        item.setPaint(
            [color, &paints](QPainter& painter, const QRectF& bounds, BarAppearance /*appearance*/) {
                painter.fillRect(bounds, color);
                ++paints;
            });
        return item;
    }
    /// The bar as it paints itself.
    [[nodiscard]] QImage expectedPicture() {
        const BarPlace place = strip->bar().place();
        QImage picture((QSizeF(place.geometry.size()) * place.pixelsPerPoint).toSize(), QImage::Format_RGB32);
        picture.fill(Qt::black);
        picture.setDevicePixelRatio(place.pixelsPerPoint);
        QPainter painter(&picture);
        strip->bar().paint(painter, QRect(QPoint(0, 0), place.geometry.size()));
        painter.end();
        picture.setDevicePixelRatio(1);
        return picture;
    }
    [[nodiscard]] bool showsTheBar() {
        return compositor.strip() != nullptr && compositor.strip()->picture == expectedPicture();
    }

    FakeCompositor compositor;
    int socket = -1; ///< the strip owns it
    int cpuPaints = 0;
    int memoryPaints = 0;
    std::optional<WaylandStrip> strip;
    BarItem* cpu = nullptr;
    BarItem* memory = nullptr;
};

} // namespace orvelle
