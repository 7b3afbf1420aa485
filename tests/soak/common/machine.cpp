#include "common/machine.h"

#include <algorithm>

namespace orvelle::soak {
namespace {

constexpr std::chrono::nanoseconds usual = std::chrono::seconds(3);

} // namespace

void Clocks::passUsually() {
    steady += usual;
    wall += usual;
}

void Clocks::goOn(Random& random) {
    using namespace std::chrono;
    constexpr WallTime earliest{seconds(0)};
    constexpr WallTime latest{seconds(7'258'118'400)}; // the year 2200
    nanoseconds passed = usual + microseconds(random.upTo(5000));
    nanoseconds setBy{};
    switch (random.upTo(499)) {
    case 0:
        passed = hours(24 * 7); // a suspension
        break;
    case 1:
        setBy = hours(24 * 365 * random.between(1, 40));
        break;
    case 2:
        setBy = -hours(24 * 365 * random.between(1, 40));
        break;
    case 3:
        setBy = -passed + nanoseconds(random.upTo(1'000'000)); // back to nearly the sample before
        break;
    case 4:
        passed = nanoseconds(random.upTo(1000)); // two samples in a row
        break;
    case 5:
        passed = nanoseconds(0);
        break;
    case 6:
        wall = start();
        break;
    default:
        break;
    }
    steady += passed;
    wall = std::clamp(wall + passed + setBy, earliest, latest);
}

} // namespace orvelle::soak
