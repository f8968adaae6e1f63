#!/usr/bin/env bash
# Makes the pictures of docs/ on a virtual screen: the sample with the properties of a line, drawing over a map, a
# selection, the form of a point, the calibration, area fills, and the window on a dark desktop.
# Usage: scripts/make_screenshots.sh [BUILD_FOLDER]   (build/release unless told otherwise)
# Needs the packages xvfb, openbox, xdotool, imagemagick and fonts-dejavu-core beside those of the build.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$root/build/release}" && pwd)
docs=$root/docs

for tool in Xvfb openbox xdotool import convert; do
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

# A map of the island: sea, land, a rough relief, its borders in the data file beside it. All three sets are the
# same picture, so that it is added without a question.
make_map() {
  local north=32.95 south=32.55 west=-17.35 east=-16.55 width=1600 height=950 outline
  outline=$(awk -F, -v n=$north -v s=$south -v w=$west -v e=$east -v W=$width -v H=$height 'NR > 1 && NF >= 2 {
    printf "%.1f,%.1f ", ($1 - w) / (e - w) * W, (n - $2) / (n - s) * H }' "$root/samples/source/madeira.bln")
  convert -seed 7 -size ${width}x${height} plasma:gray20-gray95 -blur 0x4 -shade 120x30 -normalize -blur 0x2 \
    -level 0,140% +level 35,100% -fill '#c9dba0' -tint 100 "$scratch/relief.png"
  convert -size ${width}x${height} xc:black -fill white -draw "polygon $outline" "$scratch/land.png"
  convert -size ${width}x${height} xc:'#a9cbe6' "$scratch/relief.png" "$scratch/land.png" -composite \
    -type TrueColor BMP3:"$scratch/island.bmp"
  local set
  { echo '[GEOGRAPHIC]'
    for set in '' 1 2; do
      [ -z "$set" ] || echo "File$set=island.bmp"
      printf 'North%s=%s\nSouth%s=%s\nWest%s=%s\nEast%s=%s\n' "$set" $north "$set" $south "$set" $west "$set" $east
    done; } | sed 's/$/\r/' >"$scratch/island.TXT"
}

start() {  # the sample in a window of the screen's size
  cp "$root/samples/Madeira.LSP" "$scratch/"
  "$build/bin/landsmith" "$scratch/Madeira.LSP" >>"$scratch/log" 2>&1 &
  program=$!
  started+=("$program")
  window=$(timeout 30 xdotool search --sync --onlyvisible --name '^MADEIRA  Landsmith$' | head -n 1)
  xdotool windowactivate --sync "$window"
  xdotool windowsize "$window" 1278 772
  xdotool windowmove "$window" 1 20
  sleep 1
}
stop() {
  kill "$program"
  wait "$program" 2>/dev/null || true
}
at() { xdotool mousemove --window "$window" "$1" "$2"; sleep 0.1; }
click() {  # X Y [BUTTON]; a moment later, or two clicks make a double one
  at "$1" "$2"
  xdotool click "${3:-1}"
  sleep 0.6
}
drag_view() {  # X1 Y1 X2 Y2
  at "$1" "$2"
  xdotool mousedown 2
  at $((($1 + $3) / 2)) $((($2 + $4) / 2))
  at "$3" "$4"
  xdotool mouseup 2
  sleep 0.5
}
tool() {  # its letter in the Options menu
  xdotool key alt+o
  sleep 0.3
  xdotool key "$1"
  sleep 0.6
}
dialog() { timeout 10 xdotool search --sync --onlyvisible --name "$1" | head -n 1; }
picture() {
  sleep 0.5
  import -window root -depth 8 -strip "$docs/$1.png"
  echo "$docs/$1.png"
}

road_properties() {
  click 1100 150  # on the sea: clears the selection that the sample is stored with
  drag_view 700 650 415 650
  click 199 484 3  # the coast line, between two of its vertices
  xdotool key Up Return
  xdotool windowmove "$(dialog '^Line Properties$')" 742 290
  at 1100 720
  picture screenshot
}

add_map() {
  tool m
  click 640 400
  dialog 'Bitmap|Map|Open' >/dev/null
  xdotool type "$scratch/island.bmp"
  xdotool key Return
  sleep 2
}

draw_road() {  # and leave it under way
  at 640 400
  xdotool click 5
  sleep 1
  tool l
  for place in '350 300' '430 380' '540 400' '660 380' '760 430'; do click $place; done
  at 870 400
  sleep 0.5
}

select_road() {
  xdotool key Escape
  sleep 0.5
  tool p
  click 600 390
}

point_form() {
  click 540 400 3
  xdotool key Up Return
  xdotool windowmove "$(dialog '^Landsmith - Point Properties$')" 840 500
  sleep 0.5
}

calibrate() {
  xdotool key Escape
  sleep 0.5
  at 640 400
  xdotool click 5
  sleep 1
  click 400 112 3  # the north border of the map
  xdotool key Up Return
  dialog '^Landsmith - Map Properties$' >/dev/null
  xdotool key alt+c
  xdotool windowmove "$(dialog '^Landsmith - Calibrate Map$')" 760 420
  sleep 0.5
  pick_point 927 349 224   # the western cape
  pick_point 1179 705 561  # the southern one
  at 1000 730
}

fill_blocks() {  # water of a large size, a flatten of a small one
  tool f
  at 640 400
  xdotool click --repeat 2 --delay 300 5
  sleep 1
  xdotool key alt+v g Down Down Down Down Down Down Down Return  # LOD 11
  sleep 1
  stroke 250 470 330 610
  stroke 330 610 560 620
  xdotool key alt+v g Down Down Down Down Down Down Down Down Down Return  # LOD 13
  sleep 1
  xdotool mousemove --window "$(dialog '^Area Fills$')" 30 104 click 1
  sleep 0.3
  xdotool key Tab
  xdotool type 58
  sleep 0.3
  stroke 850 465 940 465
  stroke 940 481 850 481
  at 985 505
}

stroke() {  # X1 Y1 X2 Y2; slow enough to be more than a click
  at "$1" "$2"
  xdotool mousedown 1
  sleep 0.3
  at $((($1 + $3) / 2)) $((($2 + $4) / 2))
  at "$3" "$4"
  xdotool mouseup 1
  sleep 0.4
}

pick_point() {  # X of the buttons, X Y of the place: where it lies, then which pixel it is
  click "$1" 525
  click "$2" "$3"
  sleep 0.5
  click "$1" 609
  click "$2" "$3"
  sleep 0.5
}

# The desktop's own file of colours, as the window toolkit reads it.
be_dark() {
  export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
  cat >"$XDG_CONFIG_HOME/kdeglobals" <<'COLORS'
[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
BackgroundAlternate=35,38,41
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
COLORS
}

mkdir -p "$docs"
make_map
start
road_properties
stop

start
add_map
draw_road
picture drawing
select_road
picture selection
point_form
picture point
calibrate
picture calibration
stop

start
add_map
fill_blocks
picture fills
stop

be_dark
start
add_map
draw_road
select_road
xdotool key F1
xdotool windowmove "$(dialog '^Keys and Mouse$')" 700 120
picture dark
stop
