#!/usr/bin/env bash
# Runs each fuzz target of the sanitizer build for the given seconds, two at a time: no crash, no input over 2 s, no
# more than 256 MB. Seeds: tests/fuzz/seeds/TARGET and the finds kept as fixtures.
set -euo pipefail
export ASAN_OPTIONS=detect_leaks=0  # the font library keeps what it made until the end
cd "$(dirname "$0")/.."
seconds=${1:-60}
failed=0
run_one() {
    local program=$1 name corpus log
    name=${program##*/fuzz_}
    corpus="build/fuzz/$name"
    log="build/fuzz/$name.log"
    mkdir -p "$corpus"
    local seeds=()
    [ -d "tests/fuzz/seeds/$name" ] && seeds+=("tests/fuzz/seeds/$name")
    [ -d "tests/data/$name" ] && seeds+=("tests/data/$name")
    # The sample databases, so that the reader is met behind its first checks.
    [ "$name" = workbook ] && seeds+=(tests/data/office tests/data/office/books)
    [ "$name" = drawing ] && seeds+=(data/icons)
    [ "$name" = jet ] && seeds+=(build/sanitizers/share/tendo)
    if ! "$program" -max_total_time="$seconds" -timeout=2 -detect_leaks=0 -rss_limit_mb=1024 -malloc_limit_mb=256 \
        -max_len=300000 -artifact_prefix="build/fuzz/$name-" "$corpus" "${seeds[@]}" >"$log" 2>&1; then
        echo "fuzz $name: FAILED"
        tail -n 40 "$log"
        return 1
    fi
    echo "fuzz $name: $(grep -oE 'Done [0-9]+ runs' "$log" | tail -1), $(grep -oE 'cov: [0-9]+' "$log" | tail -1)"
}
mkdir -p build/fuzz
pids=()
for program in build/sanitizers/bin/fuzz_*; do
    [ -x "$program" ] || continue
    run_one "$program" &
    pids+=($!)
    if ((${#pids[@]} == 2)); then
        for pid in "${pids[@]}"; do wait "$pid" || failed=1; done
        pids=()
    fi
done
for pid in "${pids[@]:-}"; do [ -z "$pid" ] || wait "$pid" || failed=1; done
exit $failed
