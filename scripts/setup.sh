#!/usr/bin/env bash
# Installs the Debian packages that building, testing and checking need. Does nothing where all are there.
set -euo pipefail

packages=(
  g++ make cmake ninja-build pkg-config
  coinor-libclp-dev coinor-libcbc-dev coinor-libcgl-dev coinor-libosi-dev coinor-libcoinutils-dev zlib1g-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  clang clang-format clang-tidy
)

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query --show --showformat='${Status}' "$package" 2>/dev/null || true)
  [[ $status == 'install ok installed' ]] || missing+=("$package")
done
if ((${#missing[@]} == 0)); then
  echo "setup: all packages are installed"
  exit 0
fi

if ((EUID == 0)); then
  root=()
elif command -v sudo >/dev/null; then
  root=(sudo)
else
  echo "setup: needs root or sudo to install: ${missing[*]}" >&2
  exit 1
fi

echo "setup: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${root[@]}" apt-get update
"${root[@]}" apt-get install --yes --no-install-recommends "${missing[@]}"
