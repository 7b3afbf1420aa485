#!/usr/bin/env bash
# probe_report_test.sh PROBE FIXTURES: makes reports as a user does, and recorded machines of them as a developer does.
set -uo pipefail
probe=$1 fixtures=$2
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
failures=0
complain() { echo "$1" >&2; failures=$((failures + 1)); }

# Private names everywhere in a machine, in the user's settings and in the environment.
secret=Tuesday
machine=$directory/machine
cp -a "$fixtures/laptop/1" "$machine"
plant() { mkdir -p "$(dirname "$machine/$1")"; printf '%b' "$2" >>"$machine/$1"; }
plant proc/900/stat "900 ($secret <b>&\\\\) S 1 1 1 0 -1 4194304 1 0 0 0 90000 6 0 0 20 0 1 0 1000 46018560 990500 184467 94858\n"
ln -s "/home/$secret/$secret game" "$machine/proc/900/exe"
plant proc/900/cmdline "$secret\\0--password=$secret"
plant proc/900/environ "USER=$secret"
plant proc/901/stat "901 (nfsv4-$secret) S 2 0 0 0 -1 2097216 1 0 0 0 0 0 0 0 20 0 1 0 1000 0 0 0 0\n"
plant proc/self/mountinfo "70 27 8:17 / /media/$secret/$secret\\\\\\\\040disk rw,user=$secret - ext4 /dev/mapper/$secret-vg rw,$secret\n"
plant proc/self/mountinfo "71 27 0:70 /$secret /mnt/x rw - nfs4 $secret.example:/export rw,addr=10.77.66.55\n"
plant proc/self/mountinfo "72 27 0:71 / /tank rw - zfs $secret/data rw\n"
plant statfs "/media/$secret/$secret\\\\\\\\040disk 1000000 400000\n/tank 5000 2000\n"
plant etc/fstab "LABEL=$secret /srv/$secret auto x-gvfs-hide 0 0 # $secret\n"
plant etc/hostname "$secret\n"
plant etc/passwd "$secret:x:1000:1000:$secret:/home/$secret:/bin/sh\n"
plant proc/meminfo "$secret: 12 $secret\n"
plant proc/stat "$secret 1 2 3\n"
plant proc/diskstats "   9     127 md_$secret 1 2 3 4 5 6 7 8 9 10 11\n   8 17 sdb1 1 2 3 $secret\n"
plant proc/net/dev "wg-$secret: 100 1 0 0 0 0 0 0 200 1 0 0 0 0 0 0\nenx00155d0a1b2c: 5 1 0 0 0 0 0 0 6 1 0 0 0 0 0 0\n"
plant proc/net/route "wg-$secret\t00000000\tDEADBEEF\t0003\t0\t0\t50\t00000000\t0\t0\t0\n"
plant addresses "wg-$secret 10.77.66.55\nenx00155d0a1b2c 2a02:1234:5678::9abc\nwg-$secret fe80::215:5dff:fe0a:1b2c\n"
plant "sys/class/net/wg-$secret/uevent" "DEVTYPE=wireguard\nINTERFACE=wg-$secret\n"
plant "sys/class/net/wg-$secret/address" "00:15:5d:0a:1b:2c\n"
plant "sys/class/net/wg-$secret/ifalias" "$secret\n"
plant sys/class/power_supply/hid-00:15:5d:0a:1b:2c-battery/type "Battery\n"
plant sys/class/power_supply/hid-00:15:5d:0a:1b:2c-battery/model_name "$secret\n"
plant sys/class/power_supply/hid-00:15:5d:0a:1b:2c-battery/scope "Device\n"
plant sys/devices/virtual/00:15:5d:0a:1b:2c/hwmon/hwmon9/name "chip\n"
plant sys/devices/virtual/00:15:5d:0a:1b:2c/hwmon/hwmon9/temp1_input "42000\n"
ln -s "../../devices/virtual/00:15:5d:0a:1b:2c/hwmon/hwmon9" "$machine/sys/class/hwmon/hwmon9"
ln -s ../../sdb1 "$machine/dev/disk/by-label/$secret"
mkdir -p "$directory/config/orvelle"
printf '[General]\nselectedThemeId=%s 12\ncustomCPUColorHex=%s\nshowDisk=true\n%s=1\n' "$secret" "#$secret" "$secret" \
  >"$directory/config/orvelle/orvelle.conf"

report=$directory/report.json
XDG_CONFIG_HOME=$directory/config USER=$secret LOGNAME=$secret HOSTNAME=$secret HOME=$directory/$secret DISPLAY=$secret:0 \
  XDG_CURRENT_DESKTOP="sway $secret" XDG_SESSION_TYPE=wayland \
  "$probe" --report "$report" --root "$machine" >"$directory/output" 2>&1 || complain "no report: $(cat "$directory/output")"
[[ $(stat -c %a "$report") == 600 ]] || complain "others may read the report: $(stat -c %A "$report")"
grep -q "report.json" "$directory/output" || complain "the file is not told: $(cat "$directory/output")"
for private in "$secret" 00:15:5d 00155d 10.77.66 2a02 215:5dff DEADBEEF 94858 firefox gnome-shell vgubuntu ann nas.example \
  192.168; do
  grep -qi -- "$private" "$report" && complain "the report tells $private: $(grep -i -m 3 -- "$private" "$report")"
done
for public in '"version"' '"qt"' '"kernel"' '"showDisk": true' '"XDG_SESSION_TYPE": "wayland"' '"wlp3s0"' 'process-' \
  'coretemp' 'SAMSUNG' '/home' '"proc/meminfo"'; do
  grep -q -- "$public" "$report" || complain "the report lacks $public"
done

# A recorded machine of a report shows the same. The names have become their pseudonyms.
python3 "$fixtures/unpack.py" "$report" "$directory/unpacked" || complain "the report cannot be unpacked"
"$probe" --report "$directory/again.json" --root "$directory/unpacked/1" >/dev/null || complain "the unpacked machine cannot be read"
values() { python3 - "$@" <<'END'
import json, re, sys
values = json.load(open(sys.argv[1], encoding="utf-8"))["values"]
# The numbers of pseudonyms count from the first name that is met, which is another in the second report.
print(re.sub(r'(process|wg|enx|net)-\d+|\bn\d+x*|(192\.0\.2\.|2001:db8::)\d+', "name", json.dumps(values, sort_keys=True)))
END
}
diff <(values "$report") <(values "$directory/again.json") || complain "the unpacked machine shows something else"
python3 "$fixtures/unpack.py" "$report" "$directory/unpacked" 2>/dev/null && complain "an existing folder was written to"

# Reports of strangers.
for path in ../escaped /tmp/escaped a/../../escaped; do
  echo "{\"machine\": {\"1\": {\"files\": {\"$path\": [\"x\"]}, \"links\": {}}}}" >"$directory/hostile.json"
  python3 "$fixtures/unpack.py" "$directory/hostile.json" "$directory/hostile/$RANDOM" 2>/dev/null && complain "unpacked: $path"
done
mkdir "$directory/outside"
cat >"$directory/hostile.json" <<END
{"machine": {"1": {"files": {}, "links": {"a": "$directory/outside", "a/b": "x"}}}}
END
python3 "$fixtures/unpack.py" "$directory/hostile.json" "$directory/linked" 2>/dev/null && complain "a link leads out of the folder"
[ -z "$(ls "$directory/outside")" ] || complain "written outside of the folder"

# This machine.
(cd "$directory" && "$probe" --report >output 2>&1) || complain "no report of this machine: $(cat "$directory/output")"
python3 "$fixtures/unpack.py" "$directory/orvelle-report.json" "$directory/here" || complain "this machine cannot be unpacked"
{ [ -s "$directory/here/1/proc/stat" ] && [ -s "$directory/here/2/proc/stat" ]; } || complain "the recording of this machine is empty"
{ "$probe" --root "$directory/here/1" >"$directory/values" && grep -q '"process-' "$directory/values"; } || complain "its processes are missing"
grep -qw -- "$(uname -n)" "$report" && complain "the report tells the name of this machine"
for private in "$(uname -n)" probe_report; do
  grep -qw -- "$private" "$directory/orvelle-report.json" && complain "the report of this machine tells $private"
done

"$probe" --report "$directory/missing/report.json" --root "$machine" >/dev/null 2>"$directory/errors"
{ [ $? -eq 1 ] && [ "$(wc -l <"$directory/errors")" -eq 1 ]; } || complain "a folder that is missing: $(cat "$directory/errors")"
"$probe" --report "$report" --root "$directory/none" 2>/dev/null
[ $? -eq 1 ] || complain "a machine that is missing"
exit $((failures > 0))
