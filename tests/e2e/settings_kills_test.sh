#!/bin/bash
# A program that is ended without warning while it changes settings: what was changed is kept, and kept whole.
#
#   settings_kills_test.sh ORVELLE SETTINGS_CHANGER

changer=$2
source "$(dirname "$0")/desktop.sh"
requireTools python3

python3 -B "$(dirname "$0")/settings_kills.py" "$changer" "$workDirectory/changed.conf" 200 || fail "changes are kept"
echo "$failures failures in $SECONDS seconds"
((failures == 0))
