#include "private_folders_list.h"

#include <cstdlib>

// Part of every test program, whatever its `main` does, so that a program that is run by hand leaves the
// user's files alone as it does under ctest.
namespace orvelle {
namespace {

[[maybe_unused]] const bool arePrivate = [] {
    for (const auto& [name, folder] : privateFolders)
        ::setenv(name, folder, 1);
    for (const char* const name : addressesOfTheDesktop)
        ::unsetenv(name);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0); // there is no display now, and tests need none
    return true;
}();

} // namespace
} // namespace orvelle
