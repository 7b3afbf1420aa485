#!/usr/bin/env bash
# soak.sh BIN SECONDS [SEED]: runs update cycles on scripted and recorded machines for about SECONDS.
set -euo pipefail
bin=$1
seconds=$2
seed=${3:-$(date +%s)}
here=$(dirname "$(readlink -f "$0")")
echo "cycles: seed $seed; repeat with $here/soak.sh BIN SECONDS $seed" >&2
# The address sanitizer keeps little of the freed memory, so that growth shows.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}quarantine_size_mb=8:thread_local_quarantine_size_kb=64
QT_QPA_PLATFORM=offscreen exec "$bin/orvelle-soak-cycles" --seed "$seed" --seconds "$seconds" "$here/../../fixtures"
