#!/usr/bin/env bash
# Installs what building, testing and running Landsmith need on Debian 12. Does nothing when all of it is there.
set -euo pipefail

packages=(
  ca-certificates git python3
  cmake ninja-build g++ ccache
  qt6-base-dev qt6-svg-dev libqt6svg6 qt6-image-formats-plugins libgl1-mesa-dev
  libcli11-dev
  libgtest-dev libgmock-dev libbenchmark-dev libgeos-dev nlohmann-json3-dev
  clang clang-format clang-tidy libclang-rt-14-dev
  fonts-dejavu-core
)

missing=()
for package in "${packages[@]}"; do
  state=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$state" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "These packages are missing, and there is no sudo to install them with: ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
