# Starts a private X server and window manager for scripts that drive the program without a display. Sourced. Each start
# function stores its process in a variable; `stop_virtual_display` ends these two processes only.

x_server_process=""
window_manager_process=""

# wait_until SECONDS COMMAND...: repeats the command until it succeeds or the time is up.
wait_until() {
  local deadline=$((SECONDS + $1)); shift
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $deadline ] || return 1
    sleep 0.02
  done
}

# start_x_server WIDTHxHEIGHT [OPTION...]: starts a server on a display number that it finds free, and sets DISPLAY.
start_x_server() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "$1x24" "${@:2}" -nolisten tcp -noreset 3>"$number_file" >/dev/null 2>&1 &
  x_server_process=$!
  wait_until 60 test -s "$number_file" || true
  DISPLAY=:$(<"$number_file")
  rm -f "$number_file"
  [ "$DISPLAY" != : ] || { echo "the X server did not start" >&2; return 1; }
  export DISPLAY
}

# A window manager that has ended may leave its property behind, but not the window that the property names. One that is
# starting sets this property before it manages windows, and the list of windows or the active window afterwards.
window_manager_runs() {
  local window
  window=$(xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | sed -n 's/.*# //p')
  [ -n "$window" ] && xprop -id "$window" _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "$window" &&
    xprop -root _NET_CLIENT_LIST _NET_ACTIVE_WINDOW 2>/dev/null | grep -q '#'
}

# start_window_manager [COMMAND...]
start_window_manager() {
  [ $# -gt 0 ] || set -- openbox --sm-disable
  xprop -root -remove _NET_CLIENT_LIST -remove _NET_ACTIVE_WINDOW >/dev/null 2>&1 # left by an earlier one
  "$@" >/dev/null 2>&1 &
  window_manager_process=$!
  wait_until 60 window_manager_runs || { echo "the window manager did not start" >&2; return 1; }
}

stop_virtual_display() {
  local process
  for process in $window_manager_process $x_server_process; do
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  window_manager_process=""
  x_server_process=""
}
