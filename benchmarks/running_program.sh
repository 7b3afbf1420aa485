# What the running program costs. Sourced by the scripts that measure it. They set `program`, its process id, and `log`,
# the file of its messages, when they start it. They define what differs between displays: start_program, end_program,
# click_item NUMBER and press_escape. Their tables have a line for each measurement.

# shellcheck disable=SC2154 # those scripts set `log`, `program` and `module_keys`

# Has the program say when its first bar and its panels are painted.
export QT_FORCE_STDERR_LOGGING=1 QT_LOGGING_RULES="orvelle.open.debug=true;orvelle.start.debug=true"
export QT_MESSAGE_PATTERN="%{time yyyy-MM-dd hh:mm:ss.zzz} %{message}"

# add_row WHAT MEASURED BUDGET: adds a line to the table.
add_row() { rows+=("| $1 | $2 | $3 |"); }
rows=()
print_table() { printf '%s\n' '| What | Measured | Budget |' '| --- | --- | --- |' "${rows[@]}"; }

milliseconds() { date +%s%3N; }
maximum() { sort -n | tail -1; }

# await_first_bar BEGIN: sets `started`, the milliseconds from then to the first painted bar.
await_first_bar() {
  local painted
  wait_until 20 grep -q 'first bar painted' "$log" || { cat "$log" >&2; exit 1; }
  painted=$(date -d "$(sed -n 's/ first bar painted.*//p' "$log")" +%s%3N)
  started=$((painted - $1))
}

# memory_kilobytes NAME: as the kernel names it, such as Rss.
memory_kilobytes() { awk -v name="$1:" '$1 == name {print $2}' "/proc/$program/smaps_rollup"; }

# Voluntary context switches, one line for each thread: its id and their number.
voluntary_switches() { cat "/proc/$program"/task/*/status | awk '/^Pid:/ {id = $2} /^voluntary/ {print id, $2}' | sort; }

# thread_nanoseconds PROCESS: a line for each thread: its id and its CPU time.
thread_nanoseconds() {
  local task
  for task in "/proc/$1"/task/*; do
    awk -v id="${task##*/}" '{print id, $1}' "$task/schedstat" 2>/dev/null
  done | sort
}

# growth BEFORE AFTER: the sum of what threads have more than before. One that has ended or begun meanwhile counts for
# nothing.
growth() { join <(echo "$1") <(echo "$2") | awk '{sum += $3 - $2} END {printf "%d", sum}'; }

# cpu_percent SECONDS PROCESS...: what each uses of a core in the same time, separated by blanks.
cpu_percent() {
  local seconds=$1 id before=()
  shift
  for id in "$@"; do before+=("$(thread_nanoseconds "$id")"); done
  sleep "$seconds"
  for id in "$@"; do
    awk -v nanoseconds="$(growth "${before[0]}" "$(thread_nanoseconds "$id")")" -v seconds="$seconds" \
      'BEGIN {printf "%.3f ", nanoseconds / seconds / 1e7}'
    before=("${before[@]:1}")
  done
  echo
}

# add_idle_rows SECONDS WHEN: measures the program that has nothing to show.
add_idle_rows() {
  local before percent switches
  before=$(voluntary_switches)
  read -r percent < <(cpu_percent "$1" "$program")
  switches=$(awk -v count="$(growth "$before" "$(voluntary_switches)")" -v seconds="$1" \
    'BEGIN {printf "%.2f", count / seconds}')
  add_row "voluntary context switches, all threads, $2" "$switches per second" "1 per second"
  add_row "CPU time of the same" "$percent % of a core" ""
}

# add_start_rows SECONDS: starts the program seven times, and once more to measure it while no panel has been opened. It
# still runs then.
add_start_rows() {
  local starts=()
  for _ in 1 2 3 4 5 6 7; do
    start_program
    starts+=("$started")
    end_program
    sleep 0.5
  done
  start_program
  sleep 10
  add_row "start of the process to first painted bar, median of 7" \
    "$(printf '%s\n' "${starts[@]}" | sort -n | sed -n 4p) ms" "150 ms"
  add_row "resident memory, no panel opened" "$(memory_kilobytes Rss) kB" "32768 kB"
  add_row "proportional set" "$(memory_kilobytes Pss) kB" "28672 kB"
  add_idle_rows "$1" "nothing opened"
}

# open_panels ROUNDS: opens and closes each panel in turn.
open_panels() {
  local round index
  for ((round = 0; round < $1; ++round)); do
    for index in "${!module_keys[@]}"; do
      click_item "$index"
      sleep 0.8
      press_escape
      sleep 0.3
    done
  done
}

# Milliseconds of the panels' openings, one a line.
opening_times() { sed -n 's/.*panel was painted \([0-9.]*\) ms.*/\1/p' "$log"; }

# add_opening_rows: opens each panel six times, after the first one has been opened and closed.
add_opening_rows() {
  local times
  open_panels 1
  mapfile -t times < <(opening_times)
  open_panels 5
  add_row "click to first frame, the first panel of the program" "${times[0]} ms" "120 ms"
  add_row "the first time of each other panel, at most" "$(printf '%s\n' "${times[@]:2}" | maximum) ms" "120 ms"
  add_row "later openings, at most of 30" "$(opening_times | tail -n 30 | maximum) ms" "25 ms"
  add_row "resident memory, all six panels opened six times" "$(memory_kilobytes Rss) kB" "57344 kB"
}
