#!/usr/bin/env bash
# Installs the Debian packages Brisko needs (only the missing ones) and
# configures and builds it in build/.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t packages < <(grep -v -E '^\s*(#|$)' scripts/debian-packages.txt)
missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
        missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBRISKO_WERROR=ON
cmake --build build --parallel "$(nproc)"
