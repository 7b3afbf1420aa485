# Sourced by ./run and ./test: what differs between the systems. The only place that asks which one this is.
source scripts/packages.sh

program=build/release/bin/orvelle
# A DISPLAY may name a server that is gone, or one that does not let this user in.
has_display() { [ -n "${DISPLAY:-}" ] && timeout 5 xprop -root >/dev/null 2>&1; }

[ "$(uname -s)" != Darwin ] || source scripts/homebrew.sh
