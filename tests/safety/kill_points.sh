#!/usr/bin/env bash
# Kills the program at one system call after the other while it opens, edits, autosaves, saves, saves under another
# name and recovers. After each kill the user's files must be byte for byte one of the versions that an undisturbed
# run passes through, be whole, and the next start or open must offer the working copy.
#
# usage: kill_points.sh TENDO-DRIVER TENDO-CLI      exit 77: can't be done on this machine
set -uo pipefail

fewest_points=200   # a walk of fewer points is a failure
side_step=40        # outside of a write every fortieth call will do
export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
export driver=$1 cli=$2
export calls=openat,read,pread64,write,writev,fsync,fdatasync,rename,unlink,close,fchmod,fchown

command -v strace >/dev/null || { echo "skipped: strace is not installed"; exit 77; }
strace -o /dev/null true 2>/dev/null || { echo "skipped: tracing is not permitted here"; exit 77; }

folder=$(mktemp -d) || exit 1
export folder
trap 'rm -rf "$folder"' EXIT

# --- the scenes: a start state, and the commands that are disturbed
mkdir -p "$folder"/{base,scene,versions,found}
printf '[Options]\nAutoSave=1\nAutoSaveInterval=1\n' >"$folder/base/Tendo.ini"
echo quit | "$driver" --home "$folder/base" >/dev/null 2>&1 || { echo "the program does not start"; exit 1; }
rm -f "$folder"/base/tendo.md2
cp "$folder/base/Projects/Maple Street 12.tdw" "$folder/old.tdw"
rm "$folder/base/Projects/Maple Street 12.tdw"

cat >"$folder/scene/work.drive" <<'TXT'
answer file Projects/Job.tdw
tool ToolOpen
enter frmGPD.txtProjectTitle "A new title"
timer tmrAutoSave
enter frmGPD.txtProjectDesignedBy "Someone else"
tool ToolSave
enter frmGPD.txtProjectTitle "A third title"
answer file Projects/Second.tdw
tool ToolSaveAs
enter frmGPD.txtProjectTitle "A fourth title"
timer tmrAutoSave
tool ToolSave
answer yes
tool ToolClose
TXT
cat >"$folder/scene/recover.drive" <<'TXT'
answer file Projects/Job.tdw
answer form frmTempFile "click frmTempFile.optOption1; click frmTempFile.btnOK"
tool ToolOpen
enter frmGPD.txtProjectTitle "After the recovery"
answer yes
tool ToolNew
enter frmGPD.txtProjectTitle "Untitled work"
timer tmrAutoSave
answer file Projects/Named.tdw
tool ToolSave
TXT
cat >"$folder/scene/untitled.drive" <<'TXT'
answer ok
enter frmGPD.txtProjectTitle "Recovered at the start"
timer tmrAutoSave
answer file Projects/Named.tdw
tool ToolSaveAs
answer no
quit
TXT

# prepare SCENE HOME: the program directory as the scene finds it.
prepare() {
    rm -rf "$2"
    cp -r "$folder/base" "$2"
    cp "$folder/old.tdw" "$2/Projects/Job.tdw"
    case $1 in
    recover) cp "$folder/unsaved.tdw" "$2/Projects/Job.tmp" ;;
    untitled) cp "$folder/unsaved.tdw" "$2/Projects/Untitled.tmp" ;;
    esac
}

# keep SCENE HOME: every state of the user's files that is met counts as a version of them.
keep() {
    local file sum
    for file in "$2"/Projects/*.tdw; do
        sum=$(sha256sum <"$file")
        mkdir -p "$folder/versions/$1/$(basename "$file")"
        touch "$folder/versions/$1/$(basename "$file")/${sum%% *}"
    done
}

run() { "$driver" --home "$1" --today 1998-05-09 "$2"; }

# --- undisturbed: all versions, found by running the scene again up to each of its commands
printf '%s\n' 'answer file Projects/Job.tdw' 'tool ToolOpen' 'enter frmGPD.txtProjectComment "Unsaved work"' \
    'timer tmrAutoSave' kill >"$folder/unsaved.drive"
prepare work "$folder/home"
run "$folder/home" "$folder/unsaved.drive" >/dev/null 2>&1
cp "$folder/home/Projects/Job.tmp" "$folder/unsaved.tdw" || exit 1
cmp -s "$folder/unsaved.tdw" "$folder/old.tdw" && { echo "the autosave wrote nothing"; exit 1; }
for scene in work recover untitled; do
    for ((line = 1; line <= $(wc -l <"$folder/scene/$scene.drive"); line++)); do
        { head -n "$line" "$folder/scene/$scene.drive"; echo kill; } >"$folder/part.drive"
        prepare "$scene" "$folder/home"
        run "$folder/home" "$folder/part.drive" >"$folder/said" 2>/dev/null
        if grep -F '"ok":false' "$folder/said"; then echo "the scene $scene fails undisturbed"; exit 1; fi
        keep "$scene" "$folder/home"
    done
done

# check SCENE HOME: says what is wrong after a kill, nothing when all is well.
check() {
    local file name sum
    [ -f "$2/Projects/Job.tdw" ] || echo "the user's file is gone"
    for file in "$2"/Projects/*.{tdw,tmp,hid}; do
        [ -f "$file" ] || continue
        name=$(basename "$file")
        sum=$(sha256sum <"$file")
        [[ $name != *.tdw || -e $folder/versions/$1/$name/${sum%% *} ]] ||
            echo "$name is neither the old nor a new version"
        "$cli" check "$file" >/dev/null 2>&1 || echo "$name is not whole"
    done
}

# offered HOME: the next start or open must offer a working copy that was left, and open it; what a write left half
# done is gone then.
offered() {
    local name stem said=$1.said
    {
        [ ! -f "$1/Projects/Untitled.tmp" ] || printf '%s\n' 'answer ok' start \
            'expect dialog "Unsaved Temporary File Exists"' 'expect state ProjectIsOpen true' 'tool ToolClose' quit
        for name in "$1"/Projects/*.tdw; do
            stem=$(basename "$name" .tdw)
            printf '%s\n' start "answer file \"Projects/$stem.tdw\""
            [ ! -f "$1/Projects/$stem.tmp" ] || echo 'answer form frmTempFile "click frmTempFile.optOption1; click frmTempFile.btnOK"'
            printf '%s\n' 'tool ToolOpen' 'expect state ProjectIsOpen true' 'expect form frmGPD loaded true' \
                "expect file \"Projects/$stem.tdw\" same-as \"Projects/$stem.tmp\"" 'tool ToolClose' quit
        done
    } >"$1.drive"
    "$driver" --no-start --home "$1" --today 1998-05-09 "$1.drive" >"$said" 2>/dev/null ||
        { echo "what was left can't be opened:"; grep -F '"ok":false' "$said" | cut -c1-300; }
    find "$1" -name '.tendo-*' -printf 'the next start and open left %P\n'
}

# point SCENE CALL NUMBER: one kill and its inspection.
point() {
    local home wrong status
    home=$folder/points/$1-$2-$3
    prepare "$1" "$home"
    { strace -f -o /dev/null -e "trace=$calls" -e "inject=$2:signal=KILL:when=$3" \
        "$driver" --home "$home" --today 1998-05-09 "$folder/scene/$1.drive"
      status=$?; } >/dev/null 2>&1
    if [ $status = 137 ]; then
        wrong=$(check "$1" "$home"; offered "$home")
        if [ -n "$wrong" ]; then
            echo "FAILED, killed in the scene $1 at $2 number $3: $wrong" >>"$folder/found/failures"
        fi
        echo "$1" >>"$folder/found/points"
    fi
    rm -rf "$home" "$home".*
}
export -f prepare check offered point

# --- the points: within a write of a file every call, elsewhere some
mkdir "$folder/points"
: >"$folder/found/points"
: >"$folder/found/failures"
for scene in work recover untitled; do
    prepare "$scene" "$folder/home"
    strace -f -o "$folder/log" -e "trace=$calls" "$driver" --home "$folder/home" --today 1998-05-09 \
        "$folder/scene/$scene.drive" >/dev/null 2>&1
    sed -nE 's/^([0-9]+) +([a-z0-9_]+)(\(.*)/\1 \2 \3/p' "$folder/log" | awk -v scene="$scene" -v step="$side_step" '
        NR == 1 { main = $1 }
        $1 != main { next }
        { count[$2]++ }
        /\/Projects\// { begun = 1 }
        /\/Projects\/\.tendo-[^"]*\.new", O_WRONLY/ { writing = 1 }
        !begun { next }
        writing || $2 == "unlink" || ++others % step == 0 { print scene, $2, count[$2] }
        writing && $2 == "close" && renamed { writing = renamed = 0 }
        $2 == "rename" { renamed = 1 }'
done >"$folder/list"
xargs -P 2 -L 1 bash -c 'point "$@"' point <"$folder/list"

cat "$folder/found/failures"
points=$(wc -l <"$folder/found/points")
failures=$(grep -c '^FAILED' "$folder/found/failures")
echo "walked $points points ($(sort "$folder/found/points" | uniq -c | tr -s ' \n' ' ')); $failures failures"
[ "$points" -ge $fewest_points ] || { echo "that is fewer than $fewest_points"; exit 1; }
[ "$failures" = 0 ]
