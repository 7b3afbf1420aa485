# seeded.sh, sourced by the soak.sh BIN SECONDS [SEED] of parts that are the same again with the same seed. Sets `seed`.
seed=${3:-$(date +%s)}
echo "seed $seed; repeat with $0 BIN SECONDS $seed" >&2
# The address sanitizer keeps little of the freed memory, so that growth shows.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}quarantine_size_mb=8:thread_local_quarantine_size_kb=64
export QT_QPA_PLATFORM=offscreen
