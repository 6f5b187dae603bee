#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer in
# build-asan/ and runs the whole test suite headless.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
vt_install_deps

cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DVT_SANITIZE=ON -DVT_BUILD_TESTS=ON
cmake --build build-asan -j"$(nproc)"
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build-asan --output-on-failure -j"$(nproc)" "$@"
