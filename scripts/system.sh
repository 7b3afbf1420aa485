# Handles the differences between operating systems, the only script that does. Sourced by ./run, ./test and ./bench.
source scripts/packages.sh
source scripts/build.sh

# Without a UTF-8 locale each of Qt's many tools prints a notice.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

program=build/release/bin/orvelle
# DISPLAY may name a server that is gone or that refuses this user, and WAYLAND_DISPLAY a compositor that has ended.
has_x_display() { [ -n "${DISPLAY:-}" ] && timeout 5 xprop -root >/dev/null 2>&1; }
has_wayland_display() {
  local socket=${WAYLAND_DISPLAY:-}
  [ -n "$socket" ] || return 1
  [[ $socket == /* ]] || socket=${XDG_RUNTIME_DIR:-}/$socket
  [ -S "$socket" ]
}
has_display() { has_x_display || has_wayland_display; }

[ "$(uname -s)" != Darwin ] || source scripts/homebrew.sh
