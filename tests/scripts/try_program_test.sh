#!/bin/bash
# What tries Orvelle.app on a Mac, with stand-ins for that system's tools and a program that behaves, or does not.
#
#   try_program_test.sh SCRIPTS
# shellcheck disable=SC2016 # the stand-ins expand their texts themselves
scripts=$1/macos
source "$(dirname "$0")/../e2e/desktop.sh"
export ORVELLE_PATIENCE=1 state=$workDirectory
tools=$workDirectory/tools
bundle=$workDirectory/Orvelle.app
mkdir -p "$tools" "$bundle/Contents/MacOS"
tool() { printf '#!/bin/bash\n%s\n' "$2" >"$tools/$1"; chmod +x "$tools/$1"; }
tool screencapture 'cat "$state/shown" >"${!#}"'
tool lsappinfo 'cat "$state/kind"'
tool leaks 'echo "Process 1: 3 leaks for 96 total leaked bytes."'
tool sleep 'exec /bin/sleep 0.05'
# Accessibility: a click shows something, Escape and Command-W hide it, the menu opens the settings.
tool osascript '
[[ ! -e $state/refused ]] || { echo "osascript is not allowed assistive access. (-25211)" >&2; exit 1; }
case $* in
  *"key code 53"*) echo nothing >"$state/shown" ;;
  *"key code 36"*) echo settings >"$state/shown" ;;
  *"keystroke"*) [[ -e $state/stays ]] || echo nothing >"$state/shown" ;;
  "") command=$(cat)
    case $command in
      *"return count of them"*) echo 2 ;;
      *"return texts"*) echo "CPU 12%, Memory 40%" ;;
      *"click item"*) [[ -e $state/deaf ]] || echo panel >"$state/shown" ;;
      *"return name of windows"*) [[ $(cat "$state/shown") != settings ]] || echo "Orvelle Settings" ;;
    esac ;;
esac'
export PATH=$tools:$PATH
program=$bundle/Contents/MacOS/Orvelle
cat >"$program" <<'EOF'
#!/bin/bash
if [[ -e $state/running ]]; then exit 0; fi
touch "$state/running"
trap 'rm "$state/running"; exit "$(cat "$state/status")"' TERM
echo "orvelle.start: first bar painted 90 ms after main() was entered" >&2
echo "orvelle.sample: cycle 4" >&2
while :; do /bin/sleep 0.05; done
EOF
chmod +x "$program"

# try: with what the caller has prepared; sets `results` and `status`.
prepare() {
    rm -rf "$workDirectory"/{refused,deaf,stays,running,pictures}
    echo nothing >"$workDirectory/shown"
    echo '"ApplicationType"="UIElement"' >"$workDirectory/kind"
    echo 0 >"$workDirectory/status"
}
try() {
    status=0
    "$scripts/try_program.sh" "$bundle" "$workDirectory/pictures" >"$workDirectory/out" 2>&1 || status=$?
    results=$(grep -v '^ok: ' "$workDirectory/pictures/results.txt")
}
readonly usual="items from left to right: CPU 12%, Memory 40%
lost memory: Process 1: 3 leaks for 96 total leaked bytes."

prepare
try
expectEqual "a program that behaves" "0 $usual" "$status $results"
expectEqual "and its pictures are kept" "closed-1.png closed-2.png desktop.png menu.png panel-1.png panel-2.png settings-closed.png settings.png" \
    "$(cd "$workDirectory/pictures" && echo ./*.png | sed 's:\./::g')"

prepare
touch "$workDirectory/refused"
try
expectEqual "clicks that are refused are told, and no failure" \
    "0 not allowed here: clicks by accessibility: osascript is not allowed assistive access. (-25211)
lost memory: Process 1: 3 leaks for 96 total leaked bytes." "$status $results"

prepare
touch "$workDirectory/deaf"
try
expectEqual "an item that opens nothing" "1 ${usual%%$'\n'*}
FAILED: item 1 opens something
FAILED: item 2 opens something
${usual#*$'\n'}" "$status $results"

prepare
touch "$workDirectory/stays"
try
expectEqual "settings that stay" "1 ${usual%%$'\n'*}
FAILED: Command-W closes them
${usual#*$'\n'}" "$status $results"

prepare
echo '"ApplicationType"="Foreground"' >"$workDirectory/kind"
try
expectEqual "a program of the Dock" "1 FAILED: it is no program of the Dock
$usual" "$status $results"

prepare
echo 3 >"$workDirectory/status"
try
expectEqual "an end with another status" "1 $usual
FAILED: its status is 0, not 3" "$status $results"

prepare
printf '#!/bin/bash\nexit 1\n' >"$program"
try
expectEqual "a program that does not start" 1 "$status"
echo "$failures failures"
((failures == 0))
