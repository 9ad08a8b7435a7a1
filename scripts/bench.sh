#!/usr/bin/env bash
# Prints the speed and memory ratios; exit 1 when a limit is missed.
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p build/bench-work
QT_QPA_PLATFORM=offscreen build/release/bin/tendo-bench build/bench-work build/release/share/tendo
build/release/bin/tendo-bench-micro --benchmark_min_time=0.2 --benchmark_color=false 2>/dev/null
