// The hands and eyes of the end-to-end tests under a Wayland compositor, and another program on its desktop.
//
//   wayland_client seat                    a mouse and a keyboard, see seat_commands.h
//   wayland_client window [PROGRAM]        an ordinary window, see other_window.h
//   wayland_client picture OUTPUT [PART]   the pixels of an output as a portable pixmap, or of the part
//                                          WIDTHxHEIGHT+LEFT+TOP of it
//   wayland_client interfaces              what the compositor announces, one a line

#include "client/other_window.h"
#include "client/screen_picture.h"
#include "client/seat_commands.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

namespace {

orvelle::wayland_client::Rectangle readRectangle(const char* text) {
    orvelle::wayland_client::Rectangle part;
    if (std::sscanf(text, "%dx%d+%d+%d", &part.width, &part.height, &part.left, &part.top) != 4)
        throw std::runtime_error("a part is WIDTHxHEIGHT+LEFT+TOP");
    return part;
}

} // namespace

int main(int argumentCount, char** arguments) {
    using namespace orvelle::wayland_client;
    const std::string_view task = argumentCount > 1 ? arguments[1] : "";
    try {
        Compositor compositor;
        if (task == "seat" && argumentCount == 2) {
            obeySeatCommands(compositor, std::cin, std::cout);
        } else if (task == "window" && argumentCount == 2) {
            showOtherWindow(compositor);
        } else if (task == "window" && argumentCount == 3) {
            showOtherWindow(compositor, arguments[2]);
        } else if (task == "interfaces" && argumentCount == 2) {
            for (const std::string& interface : compositor.interfaces)
                std::cout << interface << '\n';
        } else if (task == "picture" && argumentCount == 3) {
            writePicture(compositor, arguments[2], {}, stdout);
        } else if (task == "picture" && argumentCount == 4) {
            writePicture(compositor, arguments[2], readRectangle(arguments[3]), stdout);
        } else {
            std::cerr << "wayland_client: the first lines of its source tell its arguments\n";
            return EXIT_FAILURE;
        }
    } catch (const std::exception& error) {
        std::cerr << "wayland_client: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
