#!/usr/bin/env bash
# Runs clang-tidy over the sources of the product, with the compile commands of the lint build (clang, all warnings).
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build/lint -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
  -DVORQ_BUILD_BENCHMARKS=OFF -DVORQ_BUILD_TESTS=OFF >/dev/null
mapfile -t files < <(scripts/sources.sh .cpp | grep -v -e '^tests/' -e '^bench/')
printf '%s\0' "${files[@]}" |
  xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/lint --quiet --warnings-as-errors='*' 2>/dev/null
echo "lint: ${#files[@]} files are clean"
