#!/usr/bin/env bash
# Sets Brisko up on this machine, builds it and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
exec build/src/brisko
