#include "shell/wayland/compositor_thread.h"
#include "shell/wayland/wayland_desktop.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

// Windows of Qt on a fake compositor. LAYER_SHELL_VERSION chooses the version that it announces.
int main(int argumentCount, char** arguments) {
    ::testing::InitGoogleTest(&argumentCount, arguments);
    orvelle::FakeOffers offers;
    offers.xdgOutput = 0; // Qt would wait for its names
    if (qEnvironmentVariableIsSet("LAYER_SHELL_VERSION"))
        offers.layerShell = qEnvironmentVariable("LAYER_SHELL_VERSION").toUInt();
    orvelle::CompositorThread compositor(offers);
    orvelle::chooseWayland();
    qputenv("QT_QPA_PLATFORM", "wayland");
    qputenv("WAYLAND_SOCKET", QByteArray::number(compositor.clientSocket()));
    std::optional<QGuiApplication> application;
    application.emplace(argumentCount, arguments);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const int status = RUN_ALL_TESTS();
    application.reset(); // needs the compositor
    return status;
}
