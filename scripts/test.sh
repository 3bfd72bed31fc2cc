#!/usr/bin/env bash
# Sets Brisko up on this machine, builds it, runs every test and checks the
# Debian package.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
(cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel 2 --timeout 300)
bash scripts/check-package.sh
