#!/usr/bin/env bash
# soak.sh BIN SECONDS [SEED]: runs update cycles on scripted and recorded machines for about SECONDS.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
source "$here/../common/seeded.sh"
exec "$1/orvelle-soak-cycles" --seed "$seed" --seconds "$2" "$here/../../fixtures"
