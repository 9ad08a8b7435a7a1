#!/usr/bin/env bash
# run_script.sh DRIVER SCRIPT HOME: runs a screen script in a fresh program directory; shows the commands that were not ok.
# A folder NAME.home beside NAME.drive holds files that stand in the program directory before the first start, and so
# does a built one, HOME.home.
# A line "#! OPTIONS" at the head of the script adds options for the driver.
set -uo pipefail
driver=$1 script=$2 home=$3
rm -rf "$home"
mkdir -p "$home"
for start in "${script%.drive}.home" "$home.home"; do
    [ ! -d "$start" ] || cp -r "$start/." "$home/"
done
read -ra options < <(sed -n '1s/^#! //p' "$script")
output=$("$driver" --home "$home" --today 1998-05-09 ${options[@]+"${options[@]}"} "$script" 2>"$home.stderr")
status=$?
grep -F '"ok":false' <<<"$output"
commands=$(grep -cF '"ok":true' <<<"$output")
if ((status == 0 && commands == 0)); then
    echo "the script ran no command"
    status=1
fi
if ((status != 0)); then
    echo "exit status $status"
    tail -n 20 "$home.stderr"
else
    echo "$commands commands, all ok"
fi
exit $status
