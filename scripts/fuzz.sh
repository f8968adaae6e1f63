#!/usr/bin/env bash
# fuzz.sh BUILD SECONDS: runs each fuzz target of the folder BUILD for that long, from its corpus.
set -euo pipefail
cd "$(dirname "$0")/.."

scratch=$(mktemp -d "${TMPDIR:-/tmp}/landsmith-fuzz.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
for source in fuzz/fuzz_*.cpp; do
  [ -e "$source" ] || continue
  name=$(basename "$source" .cpp)
  mkdir "$scratch/$name"
  corpus=("fuzz/corpus/${name#fuzz_}")
  [ -d "${corpus[0]}" ] || corpus=()
  if ! "$1/fuzz/$name" -max_total_time="$2" -max_len=65536 -artifact_prefix="$scratch/" "$scratch/$name" \
    "${corpus[@]}" >"$scratch/$name.log" 2>&1; then
    cat "$scratch/$name.log"
    exit 1
  fi
  echo "$name: $(grep -c '' <(ls "$scratch/$name")) new inputs, $(grep '^Done ' "$scratch/$name.log")"
done
