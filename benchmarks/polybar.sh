#!/usr/bin/env bash
# polybar.sh ORVELLE: what the program and polybar with the same modules cost with everything closed, each with an X
# server and a window manager of its own, in the same minutes: while the machine has nothing else to do, and while
# other processes keep its processors busy by turns. Takes about four minutes and prints a Markdown table.
set -euo pipefail
orvelle=$1
source "$(dirname "$(readlink -f "$0")")/on_virtual_display.sh"
started=()
finish() {
  local process
  for process in "${started[@]}"; do kill "$process" 2>/dev/null || true; wait "$process" 2>/dev/null || true; done
  rm -rf "$settings"
}
trap finish EXIT
read_modules "$orvelle"

# start_display: starts a server with a window manager. They are ended with everything else.
start_display() {
  start_x_server 1280x800
  started+=("$x_server_process")
  start_window_manager
  started=("$window_manager_process" "${started[@]}")
}

write_polybar_settings() {
  local interface
  interface=$(ip -o link 2>/dev/null | sed -n "s/^[0-9]*: \([^:@]*\).*/\1/p" | grep -vx lo | head -n 1 || true)
  cat >"$settings/polybar.ini" <<INI
[bar/main]
width = 100%
height = 22
font-0 = DejaVu Sans:size=9;2
modules-right = cpu memory network disk battery temperature
[module/cpu]
type = internal/cpu
interval = 3
format = <label> <ramp-coreload>
ramp-coreload-0 = _
ramp-coreload-1 = -
ramp-coreload-2 = =
label = %percentage%%
[module/memory]
type = internal/memory
interval = 3
label = %percentage_used%%
[module/network]
type = internal/network
interface = ${interface:-lo}
interval = 3
label-connected = %upspeed% %downspeed%
[module/disk]
type = internal/fs
mount-0 = /
interval = 3
[module/battery]
type = internal/battery
[module/temperature]
type = internal/temperature
interval = 3
INI
}

# Two processes for each processor, which work and rest for changing parts of a second, so that every value moves.
start_work() {
  local number
  for ((number = 1; number <= 2 * $(getconf _NPROCESSORS_ONLN); ++number)); do
    perl -e 'srand(shift); for (;;) { my $sum = 0; $sum += $_ for 1 .. 2e6 + rand(3e7); select(undef, undef, undef, rand(0.5)) }' \
      "$number" &
    started=("$!" "${started[@]}")
  done
}

# add_cost_rows SECONDS WHEN
add_cost_rows() {
  local own own_server other other_server
  read -r own own_server other other_server < <(cpu_percent "$1" "$program" "$own_display" "$polybar" "$other_display")
  add_row "$2: Orvelle" "$own + $own_server" "that of polybar"
  add_row "$2: polybar" "$other + $other_server" ""
}

start_display
own_display=$x_server_process
write_settings "${module_settings[@]/%/=true}"
"$orvelle" 2>"$log" &
program=$!
started=("$program" "${started[@]}")
wait_until 20 grep -q 'first bar painted' "$log"

start_display
other_display=$x_server_process
write_polybar_settings
polybar --quiet --config="$settings/polybar.ini" main >/dev/null 2>&1 &
polybar=$!
started=("$polybar" "${started[@]}")
sleep 10

add_cost_rows "${SECONDS_EACH:-90}" "idle machine"
start_work
sleep 5
add_cost_rows "${SECONDS_EACH:-90}" "busy machine"
printf 'CPU time in percent of a core: the program + its X server\n\n'
print_table
