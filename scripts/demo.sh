#!/usr/bin/env bash
# Builds the Release tree in build/ and shows the module through vthost:
# the function list, the computation functions, and the first dialogs
# answered by scripts, with a screenshot of each in demo-out/.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
vt_install_deps

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DVT_BUILD_TESTS=OFF
cmake --build build -j"$(nproc)"

vthost=build/bin/vthost
mkdir -p demo-out
export VANTRELL_CONFIG_DIR="$PWD/demo-out/config"
show() { echo "\$ vthost $*"; "$vthost" "$@"; echo; }

show list
show call ParseEscape '["R1 n1 n2 10k,tol=1\\,5%"]'
show call ScanEscape '["a;b\\;c"]' '[";"]' '[4]'
show call BRELVONSearchIdx '["a","B","A"]' '["a"]'
show call ThdWeight '["A"]'
show call PerCycleTiming @scripts/demo/square.json '["duty-cycle"]' '["smooth"]'
show call PerCycleValue @scripts/demo/square.json '[0]' '["rms"]' '["smooth"]' '[1]'
. scripts/demo/dialogs/dialogs.sh
echo "screenshots: $(ls demo-out/*.png | tr '\n' ' ')"
