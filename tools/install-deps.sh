#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the desktop program need, when missing.
# With arguments, installs those packages instead (`make fuzz` names its compiler so).
set -euo pipefail

packages=(
  build-essential cmake pkg-config python3
  libgtest-dev libgmock-dev googletest libbenchmark-dev libcli11-dev
  qt6-base-dev qt6-base-dev-tools libgl-dev
  fonts-dejavu-core
  xvfb xauth
  aspell aspell-hy hunspell hunspell-en-us
  poppler-utils appstream dpkg-dev
)
if [ $# -gt 0 ]; then packages=("$@"); fi

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
