#!/usr/bin/env bash
# soak.sh BIN SECONDS: damages recorded machines and settings files at random, prints the rows of a table of the results,
# and fails at a finding.
exec "$1/orvelle-soak-damage" "$(dirname "$(readlink -f "$0")")/../../fixtures" "$2"
