#!/usr/bin/env bash
# bless.sh: replaces the golden pictures with the current ones. Look at every picture that git shows as changed before
# you commit.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

[ -f build/asan/build.ninja ] || cmake --preset asan >/dev/null
cmake --build --preset asan --target test_golden_pictures test_golden_panels test_golden_settings -- --quiet
ORVELLE_BLESS=1 ctest --preset asan -R '^test_golden_'
git status --short tests/golden
