#!/usr/bin/env bash
# Installs what `make fuzz` needs beyond the build: clang 19 with its libFuzzer and sanitizer
# runtimes (Debian 12's clang 14 crashes on the core's largest rule file).
set -euo pipefail

packages=(clang-19 libclang-rt-19-dev)

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
