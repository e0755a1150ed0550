#!/usr/bin/env bash
# Builds and runs the tests under the sanitizers: all of them with address and undefined behaviour, those that use
# several threads with thread.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset asan
cmake --build --preset asan --parallel "$(nproc)"
ctest --preset asan

cmake --preset tsan
cmake --build --preset tsan --parallel "$(nproc)" --target thread_tests
ctest --preset tsan --label-regex threads
