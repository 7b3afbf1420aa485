# Sourced by what drives the program without a display: an X server with a window manager of its own.
# start_virtual_display WIDTHxHEIGHT sets DISPLAY; both processes end with the script that sourced this file.

virtual_display_processes=()

stop_virtual_display() {
  local process
  for process in "${virtual_display_processes[@]}"; do kill "$process" 2>/dev/null || true; done
  for process in "${virtual_display_processes[@]}"; do wait "$process" 2>/dev/null || true; done
  virtual_display_processes=()
}

# wait_until SECONDS COMMAND...: tries the command every tenth of a second.
wait_until() {
  local deadline=$((SECONDS + $1)); shift
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $deadline ] || return 1
    sleep 0.1
  done
}

start_virtual_display() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$number_file" >/dev/null 2>&1 &
  virtual_display_processes+=($!)
  wait_until 20 test -s "$number_file" || { echo "the virtual display did not start" >&2; return 1; }
  DISPLAY=":$(cat "$number_file")"
  export DISPLAY
  rm -f "$number_file"
  openbox --sm-disable >/dev/null 2>&1 &
  virtual_display_processes+=($!)
  wait_until 20 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'
}
