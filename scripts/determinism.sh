#!/usr/bin/env bash
# Runs the first dialogs' demo calls (and a bare TableEditor answered by
# accept) N times in a row through build/bin/vthost, and prints for each
# call how many runs gave which exit code, result and event lines. Every
# call must show one line: the same answer every time. Run it with a build
# on the other core to see it under load.
#   scripts/determinism.sh [N]        (after scripts/demo.sh; N defaults to 200)
set -euo pipefail
cd "$(dirname "$0")/.."
n=${1:-200}
vthost=build/bin/vthost
d=scripts/demo/dialogs
out=$(mktemp -d)
export QT_QPA_PLATFORM=offscreen VANTRELL_CONFIG_DIR="$out/config"
run() {
  local name=$1; shift
  local rc=0
  timeout 60 "$vthost" "$@" > "$out/stdout" 2> "$out/stderr" || rc=$?
  echo "rc=$rc $(md5sum < "$out/stdout" | cut -c1-8) $(md5sum < "$out/stderr" | cut -c1-8)" >> "$out/$name"
}
for _ in $(seq 1 "$n"); do
  run Select2Dialog call Select2Dialog '["R1", "1k", "Pick a resistor and a value", "Resistor", "Value"]' \
    '["R1|R2|R3", "1k|4.7k|10k"]' --answer $d/select2.json
  run ListSubsetDialog call ListSubsetDialog '["V(in)", "V(out)", "I(R1)", "I(C1)"]' '["V(supply)"]' \
    '["Signals"]' '["Plotted"]' --answer $d/listsubset.json
  run TableDialog call TableDialog '[4, 2]' '["0;0;", "1m;1;", "2m;0;"]' --answer $d/tabledialog.json
  run TableEditor call TableEditor '[]' '[]' '[]' --answer accept
done
for f in Select2Dialog ListSubsetDialog TableDialog TableEditor; do
  echo "$f:"; sort "$out/$f" | uniq -c
done
rm -rf "$out"
