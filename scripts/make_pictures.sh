#!/usr/bin/env bash
# Makes the pictures of the user guide, light and dark, with the driver, from the sample job.
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p docs/pictures
for theme in light dark; do
    home=/tmp/tendo
    rm -rf "$home"
    mkdir -p "$home/home"
    cp data/sample_company.ini "$home/home/Tendo.ini"
    sed "s/THEME/$theme/" docs/pictures.drive >"$home/pictures.drive"
    env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen TENDO_THEME=$theme \
        build/release/bin/tendo-driver --home "$home/home" --today 2026-05-04 "$home/pictures.drive" 2>/dev/null |
        grep -F '"ok":false' && exit 1
    rm -rf "$home"
done
exit 0
