#include "client/seat_commands.h"

#include "client/virtual_keyboard.h"
#include "client/virtual_pointer.h"

#include <istream>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace orvelle::wayland_client {
namespace {

struct Seat {
    explicit Seat(Compositor& display)
        : compositor(display)
        , pointer(display)
        , keyboard(display) {}

    Compositor& compositor;
    VirtualPointer pointer;
    VirtualKeyboard keyboard;
};

int number(std::istream& words) {
    int value = 0;
    if (!(words >> value))
        throw std::runtime_error("a number is missing");
    return value;
}

int numberOr(std::istream& words, int usual) {
    int value = 0;
    return words >> value ? value : usual;
}

void moveTo(Seat& seat, std::istream& words) {
    const int left = number(words);
    const int top = number(words);
    seat.pointer.move(left, top);
}

void click(Seat& seat, std::istream& words) {
    const int button = number(words);
    moveTo(seat, words);
    const int count = numberOr(words, 1);
    const int perSecond = numberOr(words, 0);
    const std::chrono::milliseconds halfPeriod(perSecond > 0 ? 500 / perSecond : 0);
    for (int clicked = 0; clicked < count; ++clicked) {
        seat.pointer.press(button);
        seat.compositor.handleEventsFor(halfPeriod);
        seat.pointer.release(button);
        seat.compositor.handleEventsFor(halfPeriod);
    }
}

void typeKeys(Seat& seat, std::istream& words) {
    for (std::string name; words >> name;)
        seat.keyboard.type(name);
}

void obey(Seat& seat, const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "move") {
        moveTo(seat, words);
    } else if (command == "press") {
        seat.pointer.press(number(words));
    } else if (command == "release") {
        seat.pointer.release(number(words));
    } else if (command == "click") {
        click(seat, words);
    } else if (command == "wheel") {
        const int points = number(words);
        moveTo(seat, words);
        seat.pointer.turnWheel(points);
    } else if (command == "key") {
        typeKeys(seat, words);
    } else {
        throw std::runtime_error("there is no command " + command);
    }
}

} // namespace

void obeySeatCommands(Compositor& compositor, std::istream& input, std::ostream& output) {
    Seat seat(compositor);
    compositor.synchronize();
    for (std::string line; std::getline(input, line);) {
        try {
            compositor.synchronize(); // the outputs may have changed
            obey(seat, line);
            compositor.synchronize();
            output << "done" << std::endl;
        } catch (const std::runtime_error& error) {
            output << "failed: " << error.what() << std::endl;
        }
    }
}

} // namespace orvelle::wayland_client
