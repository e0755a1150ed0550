#!/usr/bin/env bash
# Prints the C and C++ files that git tracks or would track, one a line; with arguments, those that end in one of them.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files --cached --others --exclude-standard -- '*.h' '*.hpp' '*.cpp' '*.c' 'include/vorq' |
  while read -r file; do
    [[ -f $file ]] || continue
    if (($# == 0)); then echo "$file"; continue; fi
    for ending in "$@"; do [[ $file == *"$ending" ]] && echo "$file"; done
  done || true
