#!/usr/bin/env bash
# tests/fuzz/run.sh AMOUNT [PARSER...]: fuzzes the parsers in turn, in the background of everything else. AMOUNT is the
# number of executions to reach in all, with those of earlier runs, or hours such as 8h. It can be interrupted at any
# time and goes on where it was. build/fuzzing keeps what it knows:
#   counts          a line for each parser: its name, its executions and the seconds that they took, of all runs
#   texts/PARSER    the texts that reach every known part of the parser
#   findings        the texts that break a promise; the first one ends the run with status 1
# Most of the time it runs the fuzzers without the address sanitizer (preset fuzz-quick) on short texts. A tenth of the
# time runs them with it (preset fuzz) on long ones. Afterwards tests/fuzz/keep.sh adds the new texts to the corpus.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
: "${ORVELLE_FUZZ_SLICE:=60}" # seconds until the next parser's turn
state=build/fuzzing
amount=${1:-}
[[ $amount =~ ^[1-9][0-9]*h?$ ]] || { sed -n '2,3s/^# //p' "$0" >&2; exit 2; }
parsers=("${@:2}")
[ ${#parsers[@]} -gt 0 ] || mapfile -t parsers < <(ls tests/fuzz/corpus)

mkdir -p "$state/texts" "$state/findings"
touch "$state/counts"
exec 9>"$state/lock"
flock -n 9 || { echo "run.sh: another run is busy in $state" >&2; exit 2; }

for preset in fuzz fuzz-quick; do
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build "build/$preset" --target "${parsers[@]/#/orvelle-fuzz-}" >"$state/build.log" ||
    { tail -30 "$state/build.log" >&2; exit 2; }
done

total() { awk '{ sum += $2 } END { printf "%d", sum }' "$state/counts"; }
# The parser that has had the least time.
next_parser() {
  printf '%s\n' "${parsers[@]}" | awk -v counts="$state/counts" '
    BEGIN { while ((getline line <counts) > 0) { split(line, words, " "); seconds[words[1]] = words[3] } }
    { print seconds[$1] + 0, $1 }' | sort -n | sed -n '1s/.* //p'
}
# add_to_counts PARSER EXECUTIONS SECONDS
add_to_counts() {
  awk -v parser="$1" -v executions="$2" -v seconds="$3" '
    $1 == parser { $2 += executions; $3 += seconds; found = 1 }
    { printf "%s %d %d\n", $1, $2, $3 }
    END { if (!found) printf "%s %d %d\n", parser, executions, seconds }' "$state/counts" >"$state/counts.next"
  mv "$state/counts.next" "$state/counts"
}

# fuzz PARSER SLICE: one turn. Every tenth is one of the thorough kind.
fuzz() {
  local parser=$1 texts=$state/texts/$1 preset=fuzz-quick lengths=(-max_len=256) begin=$SECONDS result=0 executions
  case $(($2 % 10)) in
    9) preset=fuzz lengths=(-max_len=65536 -len_control=0) ;;
    4) lengths=(-max_len=4096) ;;
  esac
  mkdir -p "$texts"
  nice -n 19 "build/$preset/bin/orvelle-fuzz-$parser" -max_total_time="$ORVELLE_FUZZ_SLICE" -print_final_stats=1 \
    -timeout=30 -rss_limit_mb=1024 "${lengths[@]}" -artifact_prefix="$state/findings/$parser-" -verbosity=0 -print_funcs=0 \
    "$texts" "tests/fuzz/corpus/$parser" >"$state/last.log" 2>&1 9>&- &
  child=$!
  wait "$child" || result=$?
  # Interrupted: the fuzzer is told to end too, and still says how far it got.
  [ -z "$stopped" ] || { kill -INT "$child" 2>/dev/null || true; wait "$child" || true; result=0; }
  child=""
  executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$state/last.log")
  add_to_counts "$parser" "${executions:-0}" $((SECONDS - begin))
  [ "$result" -eq 0 ] || { cat "$state/last.log" >&2; echo "run.sh: $parser fails, see $state/findings" >&2; exit 1; }
}

# minimise PARSER: keeps the fewest texts that reach the same.
minimise() {
  local texts=$state/texts/$1
  rm -rf "$texts.next"
  mkdir "$texts.next"
  nice -n 19 "build/fuzz-quick/bin/orvelle-fuzz-$1" -merge=1 "$texts.next" "$texts" >"$state/last.log" 2>&1 9>&- || return 0
  rm -rf "$texts"
  mv "$texts.next" "$texts"
}

stopped=""
child=""
trap 'stopped=yes' INT TERM HUP
begin=$SECONDS
slice=$(awk -v each="$ORVELLE_FUZZ_SLICE" '{ sum += $3 } END { printf "%d", sum / each / (NR ? NR : 1) }' "$state/counts")
turns=0
is_done() {
  [ -z "$stopped" ] || return 0
  if [[ $amount == *h ]]; then [ $((SECONDS - begin)) -ge $((${amount%h} * 3600)) ]; else [ "$(total)" -ge "$amount" ]; fi
}
until is_done; do
  parser=$(next_parser)
  fuzz "$parser" $((slice + turns / ${#parsers[@]}))
  turns=$((turns + 1))
  if [ -z "$stopped" ] && [ "$(find "$state/texts/$parser" -type f | wc -l)" -gt 500 ]; then minimise "$parser"; fi
done
echo "run.sh: $(total) executions of ${#parsers[@]} parsers in all"
