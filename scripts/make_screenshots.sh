#!/usr/bin/env bash
# Makes docs/screenshot.png: the sample project on a virtual screen, with the properties of one of its lines.
# Usage: scripts/make_screenshots.sh [BUILD_FOLDER]   (build/release unless told otherwise)
# Needs the packages xvfb, openbox, xdotool, imagemagick and fonts-dejavu-core beside those of the build.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$root/build/release}" && pwd)
picture=$root/docs/screenshot.png

for tool in Xvfb openbox xdotool import; do
  command -v "$tool" >/dev/null || { echo "$tool is missing" >&2; exit 1; }
done

scratch=$(mktemp -d)
started=()
finish() {
  for process in "${started[@]}"; do kill "$process" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$scratch"
}
trap finish EXIT

# The program writes its settings here, not into the author's own folder.
export XDG_DATA_HOME=$scratch/data XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch/run
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
mkdir -m 700 "$XDG_DATA_HOME" "$XDG_CONFIG_HOME" "$XDG_RUNTIME_DIR"

# The server picks a free number itself and tells it once it listens.
exec 3<>"$scratch/number"
Xvfb -displayfd 3 -screen 0 1280x800x24 >/dev/null 2>&1 &
started+=($!)
for _ in $(seq 50); do
  [ -s "$scratch/number" ] && break
  sleep 0.1
done
DISPLAY=:$(head -n 1 "$scratch/number")
export DISPLAY

openbox >/dev/null 2>&1 &
started+=($!)
cp "$root/samples/Madeira.LSP" "$scratch/"
"$build/bin/landsmith" "$scratch/Madeira.LSP" >"$scratch/log" 2>&1 &
started+=($!)

window=$(timeout 30 xdotool search --sync --onlyvisible --name '^MADEIRA  Landsmith$' | head -n 1)
xdotool windowactivate --sync "$window"
xdotool windowsize "$window" 1278 772
xdotool windowmove "$window" 1 20
sleep 1

at() { xdotool mousemove --window "$window" "$1" "$2"; }

# A click on the sea clears the selection that the sample is stored with, so that the roads show their colours.
at 1100 150
xdotool click 1
sleep 0.5

# The island moves to the left, to leave room for the dialog.
at 700 650
xdotool mousedown 2
at 600 650
at 415 650
xdotool mouseup 2
sleep 0.5

# The menu of the coast line, between two of its vertices, and the last item of it.
at 199 484
xdotool click 3
sleep 0.5
xdotool key Up Return
dialog=$(timeout 10 xdotool search --sync --onlyvisible --name '^Line Properties$' | head -n 1)
xdotool windowmove "$dialog" 742 290
at 1100 720
sleep 0.5

mkdir -p "$(dirname "$picture")"
import -window root -depth 8 -strip "$picture"
echo "$picture"
