#!/usr/bin/env bash
# bless.sh: takes the pictures as they are painted now as the golden ones. Look at what git shows as changed
# before you commit it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

[ -f build/asan/build.ninja ] || cmake --preset asan >/dev/null
cmake --build --preset asan --target test_golden_pictures test_golden_panels test_golden_settings -- --quiet
ORVELLE_BLESS=1 ctest --preset asan -R '^test_golden_'
git status --short tests/golden
