#!/usr/bin/env bash
# Builds the Release tree and writes the function reference docs/functions.md
# with a picture of every dialog in docs/gallery/, by running each example of
# docs/examples/ through vthost. With --lang xx the pseudo-translation is
# used and the output goes to build/gallery-xx/ instead (to look for clipped
# texts).
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
vt_install_deps python3

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DVT_BUILD_TESTS=OFF
cmake --build build -j"$(nproc)"
export QT_QPA_PLATFORM=offscreen
if [ "${1:-}" = "--lang" ]; then
  python3 scripts/gallery.py build/bin/vthost --lang "$2" --out "build/gallery-$2"
  echo "written: build/gallery-$2/functions.md"
else
  python3 scripts/gallery.py build/bin/vthost
  echo "written: docs/functions.md"
fi
