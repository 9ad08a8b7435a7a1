#!/bin/bash
# Disturbs a save at each of its system calls: killed there, the file must hold the old or the new content,
# whole; with an error there, the save must say so, name the file, and leave the old content and no other file.
#
# usage: kill_at_every_call.sh PATH-OF-SAVE_VICTIM      exit 77: can't be done on this machine

set -u
victim=$1
export ASAN_OPTIONS=detect_leaks=0   # the leak check can't work under a tracer

command -v strace >/dev/null || { echo "skipped: strace is not installed"; exit 77; }
strace -o /dev/null true 2>/dev/null || { echo "skipped: tracing is not permitted here"; exit 77; }

folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
file=$folder/real/Job.tdw      # the file itself
link=$folder/Job.tdw           # the name it is saved under
failures=0

for ((i = 0; i < 9000; i++)); do echo "an old line of the job"; done >"$folder/old"
for ((i = 0; i < 20000; i++)); do echo "new line."; done >"$folder/new"

prepare() {
    rm -rf "$folder/real" "$link"
    mkdir "$folder/real"
    cp "$folder/old" "$file"
    chmod 640 "$file"
    [ "$(id -u)" != 0 ] || chown 12345:12345 "$file"
    ln -s real/Job.tdw "$link"
}

failed() {
    echo "FAILED at $point: $*"
    failures=$((failures + 1))
}

is_old() { cmp -s "$file" "$folder/old"; }
is_new() { cmp -s "$file" "$folder/new"; }
only_one_file() { [ "$(ls -A "$folder/real" | wc -l)" = 1 ]; }

# --- the calls of an undisturbed save
point="the undisturbed save"
prepare
strace -f -o "$folder/log" "$victim" "$link" || failed "it did not succeed"
is_new || failed "the file does not hold the new content"
[ -L "$link" ] || failed "the link was replaced"
only_one_file || failed "another file was left behind"
[ "$(stat -c %a "$file")" = 640 ] || failed "the permissions were not kept"

# One line per call: its name, the how-manieth of that name it is, and "before" or "after" the rename.
sed -nE 's/^[0-9]+ +([a-z0-9_]+)\(/\1 /p' "$folder/log" | awk '
    { count[$1]++ }
    saving { print $1, count[$1], stage }
    $1 ~ /^rename/ { stage = "after" }
    /the-save-begins-here/ { saving = 1; stage = "before" }' >"$folder/calls"
for needed in "openat before" "write before" "fsync before" "fchmod before" "close before" \
    "rename(at2?)? before" "fsync after"; do
    grep -qE "^${needed/ / [0-9]+ }$" "$folder/calls" || failed "no call of $needed the rename"
done

# --- killed at each of them
kills=0
while read -r call number stage; do
    point="a kill at $call number $number"
    prepare
    { strace -f -o /dev/null -e "inject=$call:signal=KILL:when=$number" "$victim" "$link"
      status=$?; } >/dev/null 2>&1
    [ $status = 137 ] || failed "the program was not killed (exit $status)"
    if [ "$stage" = before ]; then
        is_old || failed "the old content is gone before the rename"
    else
        is_new || failed "the new content is not there after the rename"
    fi
    "$victim" "$link" 2>/dev/null && is_new || failed "the next save does not work"
    kills=$((kills + 1))
done <"$folder/calls"

# --- failing at each of them that works on files
errors=0
while read -r call number stage; do
    case $call in
    readlink* | *stat* | access | faccessat* | open* | write | fsync | fchown | fchmod | close | rename*) ;;
    *) continue ;;   # memory, process: not the save's own
    esac
    for error in ENOSPC EIO; do
        point="$error at $call number $number"
        prepare
        message=$(strace -f -o /dev/null -e "inject=$call:error=$error:when=$number" \
            "$victim" "$link" 2>&1)
        status=$?
        only_one_file || failed "another file was left behind"
        if [ "$stage" = after ] || [ "$call" = fchown ]; then
            [ $status = 0 ] && is_new || failed "the save is not done (exit $status)"
        else
            [ $status = 1 ] || failed "the exit is $status, not 1"
            is_old || failed "the old content was not kept"
            [[ $message == *"$link"* ]] || failed "the message does not name the file: $message"
            case $call,$error in
            write,ENOSPC | fsync,ENOSPC)
                [[ $message == *"the disk is full"* ]] || failed "no full disk in: $message" ;;
            esac
        fi
        errors=$((errors + 1))
    done
done <"$folder/calls"

[ $kills -ge 15 ] && [ $errors -ge 30 ] || { point="the walk"; failed "too few points"; }
echo "walked $kills kills and $errors errors; $failures failures"
[ $failures = 0 ]
