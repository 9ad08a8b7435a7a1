#!/usr/bin/env bash
# Words that have no place in the repository: unfinished work, and paths of one machine.
set -euo pipefail
cd "$(dirname "$0")/.."
status=0
unfinished='\b(TO''DO|FIX''ME|XX''X|HA''CK|not implem''ented)\b'
if git grep -nIE "$unfinished" -- src tests; then
    echo "Unfinished by its own words." >&2
    status=1
fi
if git grep -nIE '(^|[^A-Za-z0-9_.])/(root|wo''rk)/' -- src tests docs README.md CHANGELOG.md; then
    echo "A path of one machine." >&2
    status=1
fi
long=$(git ls-files '*.cpp' '*.h' | xargs wc -l | awk '$2 != "total" && $1 > 600 {print $2 ": " $1 " lines"}')
if [ -n "$long" ]; then
    echo "$long" >&2
    echo "A file over 600 lines." >&2
    status=1
fi
exit $status
