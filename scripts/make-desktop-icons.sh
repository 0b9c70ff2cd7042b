#!/bin/sh
# Renders the desktop icons of dist/linux/icons/ into the hicolor theme layout
# the package installs (share/icons/hicolor/):
#   hicolor/NxN/apps/com.torvane.Talu.png                      application icon
#   hicolor/NxN/mimetypes/com.torvane.Talu-{patch,recording,log}.png   file types
#   hicolor/scalable/{apps,mimetypes}/*.svg                    the SVG sources
# for N in 16 22 24 32 48 64 128 256. Each PNG comes from the smallest
# hand-tuned, pixel-aligned drawing at least N px big (icons/16/, icons/24/),
# else from the 256 px drawing in icons/ (which is also the scalable icon).
# Needs rsvg-convert (Debian: librsvg2-bin). Run by hand when an icon changes;
# the PNGs are committed.
set -eu
icons=$(cd "$(dirname "$0")/../dist/linux/icons" && pwd)
out=$icons/hicolor
command -v rsvg-convert >/dev/null || { echo "rsvg-convert missing: apt-get install librsvg2-bin" >&2; exit 1; }

source_for() { # NAME SIZE
    for tuned in 16 24; do
        if [ "$2" -le "$tuned" ] && [ -f "$icons/$tuned/$1.svg" ]; then
            echo "$icons/$tuned/$1.svg"
            return
        fi
    done
    echo "$icons/$1.svg"
}

render() { # NAME CONTEXT
    mkdir -p "$out/scalable/$2"
    cp "$icons/$1.svg" "$out/scalable/$2/$1.svg"
    for size in 16 22 24 32 48 64 128 256; do
        mkdir -p "$out/${size}x${size}/$2"
        rsvg-convert --width "$size" --height "$size" --output "$out/${size}x${size}/$2/$1.png" "$(source_for "$1" "$size")"
    done
}

render com.torvane.Talu apps
for kind in patch recording log; do
    render "com.torvane.Talu-$kind" mimetypes
done
echo "Icons written under $out"
