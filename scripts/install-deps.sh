#!/usr/bin/env bash
# Installs every Debian 12 package zorvan-settings needs; does nothing when all are present.
set -euo pipefail
packages=(
  build-essential cmake ninja-build ccache git clang-format
  libboost1.81-dev libfmt-dev libgoogle-glog-dev
  libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev libcli11-dev
)
missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0
SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO=sudo
echo "install-deps: installing ${missing[*]}"
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
