#!/usr/bin/env bash
# clang-tidy over all sources of the program. A file that was clean is looked at again only when it, or a header of the
# program, changed.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build/sanitizers
stamps=build/lint
mkdir -p "$stamps"
headers=$(git ls-files 'src/*.h' .clang-tidy | xargs cat | sha256sum | cut -c1-16)
pending=()
while read -r file; do
    key=$(sha256sum "$file" | cut -c1-24)-$headers
    [ -e "$stamps/$key" ] || pending+=("$file|$stamps/$key")
done < <(git ls-files 'src/*.cpp')
((${#pending[@]} == 0)) && exit 0
lint_one() {
    local file=${1%%|*} stamp=${1##*|} log
    if log=$(clang-tidy --quiet -p "$2" --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-Wno-ignored-optimization-argument "$file" 2>&1); then
        : >"$stamp"
    else
        echo "$log" | grep -vE '^[0-9]+ warnings generated|^Suppressed|^Use -'
        return 1
    fi
}
export -f lint_one
printf '%s\0' "${pending[@]}" | xargs -0 -P "$(nproc)" -I{} bash -c 'lint_one "$1" "$2"' _ {} "$build"
