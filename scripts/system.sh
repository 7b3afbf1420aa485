# Sourced by ./run, ./test and ./bench: what differs between the systems. The only place that asks which one this is.
source scripts/packages.sh
source scripts/build.sh

# Each of Qt's many tools would print a notice where the locale's texts are not UTF-8.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

program=build/release/bin/orvelle
# A DISPLAY may name a server that is gone, or one that does not let this user in.
has_display() { [ -n "${DISPLAY:-}" ] && timeout 5 xprop -root >/dev/null 2>&1; }

[ "$(uname -s)" != Darwin ] || source scripts/homebrew.sh
