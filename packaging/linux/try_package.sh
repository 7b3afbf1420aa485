#!/bin/bash
# try_package.sh PACKAGE.deb: installs a package as a user does, runs the program, and removes it again. For a minimal root
# that is thrown away afterwards: it needs root and leaves the package's dependencies behind.
set -euo pipefail
package=$(readlink -f "$1")
export DEBIAN_FRONTEND=noninteractive
failures=0
fail() { echo "FAILED: $1"; failures=$((failures + 1)); }
check() { local what=$1; shift; if "$@"; then echo "ok: $what"; else fail "$what"; fi; }

apt-get update -q >/dev/null
before=$(find /etc /usr /lib /var/lib/systemd -xdev 2>/dev/null | sort)
apt-get install -y -q --no-install-recommends "$package" >/tmp/install.log 2>&1 || { cat /tmp/install.log; exit 1; }
echo "ok: apt installs it and what it depends on"

home=$(mktemp -d)
as_user=(env -i HOME="$home" XDG_RUNTIME_DIR="$home" PATH="$PATH" LC_ALL=C.UTF-8 QT_FORCE_STDERR_LOGGING=1
  QT_QPA_PLATFORM=offscreen "QT_LOGGING_RULES=orvelle.start.debug=true;orvelle.open.debug=true")
mkdir -p "$home/.config/orvelle"
printf '[General]\nshowDisk=true\n' >"$home/.config/orvelle/orvelle.conf"
check "the version is told" [ "$("${as_user[@]}" orvelle --version)" = "orvelle $(dpkg-deb -f "$package" Version | sed 's/-.*//')" ]
"${as_user[@]}" orvelle-probe >"$home/values.json"
check "the probe prints values" grep -q '"totalUsage"' "$home/values.json"
"${as_user[@]}" orvelle-snapshot "$home/pictures" --example >/dev/null 2>"$home/snapshot.log" ||
  fail "the pictures of all windows: $(cat "$home/snapshot.log")"
check "the windows find all that they import" [ "$(find "$home/pictures" -name '*.png' | wc -l)" -gt 20 ]
program="" log=""
start() {
  log=$(mktemp -p "$home")
  "${as_user[@]}" orvelle "$@" 2>"$log" &
  program=$!
  await_message "the program starts" "first bar painted"
}
# await_message WHAT MESSAGE
await_message() {
  for _ in $(seq 100); do ! grep -q "$2" "$log" || { echo "ok: $1"; return; }; sleep 0.1; done
  fail "$1: $(cat "$log")"
}
start --settings
await_message "its settings open" "settings window was painted"
check "no font of its own is missing" [ -z "$(grep -i "font" "$log")" ]

# A newer version lies in the same place, and the program that runs goes on until it ends.
apt-get install -y -q --reinstall "$package" >/dev/null 2>&1
sleep 4
check "an upgrade leaves the running program alone" kill -0 "$program"
kill -TERM "$program"
check "it ends with status 0" wait "$program"
start
kill -TERM "$program"
check "the upgraded one starts, and ends with status 0" wait "$program"

apt-get purge -y -q orvelle >/dev/null 2>&1
left=$(comm -13 <(echo "$before") <(find /etc /usr /lib /var/lib/systemd -xdev 2>/dev/null | sort) | grep -i orvelle || true)
check "removal leaves nothing of it" [ -z "$left" ]
[ -z "$left" ] || echo "$left"
check "but the user's settings stay" grep -q '^showDisk=true$' "$home/.config/orvelle/orvelle.conf"
rm -rf "$home"
echo "$failures failures"
((failures == 0))
