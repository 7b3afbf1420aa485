#!/usr/bin/env bash
# soak.sh BIN SECONDS [SEED]: opens and closes the windows for about SECONDS while a scripted machine is sampled.
set -euo pipefail
source "$(dirname "$(readlink -f "$0")")/../common/seeded.sh"
exec "$1/orvelle-soak-windows" "$2" "$seed"
