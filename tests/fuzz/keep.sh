#!/usr/bin/env bash
# tests/fuzz/keep.sh [PARSER...]: adds to the corpus those texts of build/fuzzing, which tests/fuzz/run.sh has found, that
# reach a part of a parser which no text of the corpus reaches. Not while run.sh runs.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
parsers=("$@")
[ ${#parsers[@]} -gt 0 ] || mapfile -t parsers < <(ls tests/fuzz/corpus)
for parser in "${parsers[@]}"; do
  texts=build/fuzzing/texts/$parser
  [ -d "$texts" ] || continue
  # How often a part is reached makes no difference here: one text for each part is enough.
  nice -n 19 "build/fuzz-quick/bin/orvelle-fuzz-$parser" -merge=1 -use_counters=0 -max_len=4096 \
    "tests/fuzz/corpus/$parser" "$texts" 2>&1 | sed -n "s/^MERGE-OUTER: \([0-9]* new files\).*/$parser: \1/p"
done
