// The generated code is C. Its declarations come first, because constants of C++ are else private to this
// file.
#include <fractional-scale-v1-client-protocol.h>
#include <viewporter-client-protocol.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>
#include <xdg-output-unstable-v1-client-protocol.h>
#include <xdg-shell-client-protocol.h>

// NOLINTBEGIN(bugprone-suspicious-include): see above
extern "C" {
#include <fractional-scale-v1-protocol.c>
#include <viewporter-protocol.c>
#include <wlr-layer-shell-unstable-v1-protocol.c>
#include <xdg-output-unstable-v1-protocol.c>
#include <xdg-shell-protocol.c>
}
// NOLINTEND(bugprone-suspicious-include)
