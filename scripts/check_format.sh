#!/usr/bin/env bash
# Checks that every source is formatted as .clang-format says; with --fix, formats them.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(scripts/sources.sh)
if [[ ${1:-} == --fix ]]; then
  clang-format -i --style=file "${files[@]}"
else
  clang-format --dry-run --Werror --style=file "${files[@]}"
  echo "format: ${#files[@]} files are formatted"
fi
