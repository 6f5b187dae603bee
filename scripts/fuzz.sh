#!/usr/bin/env bash
# Long fuzzing runs, niced for a shared machine:
#   scripts/fuzz.sh [SECONDS-PER-TARGET] [CALLS-PER-FUNCTION]
# runs every libFuzzer target of fuzz/ for SECONDS each (clang build in
# build-fuzz/, working corpus in build-fuzz/corpus/<name>, seeded from
# fuzz/corpus/<name>), then the argument-shape fuzzer over every registered
# function with CALLS calls each (ASan/UBSan build in build-asan/). Defaults:
# 60 and 200. The argument fuzzer's seed is random and printed; set
# VT_FUZZ_SEED to repeat a run. A failure leaves a crash-* file (libFuzzer)
# or prints the call that failed, and the script exits non-zero.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
calls=${2:-200}
. scripts/deps.sh
vt_install_deps clang libclang-rt-14-dev

CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DVT_SANITIZE=ON -DVT_BUILD_FUZZ=ON -DVT_BUILD_TESTS=OFF >/dev/null
nice -n 10 cmake --build build-fuzz -j"$(nproc)" --target vt_fuzzers
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DVT_SANITIZE=ON -DVT_BUILD_TESTS=ON >/dev/null
nice -n 10 cmake --build build-asan -j"$(nproc)" --target tst_argfuzz

status=0
summary=()
for fuzzer in build-fuzz/bin/*_fuzz; do
  name=$(basename "$fuzzer" _fuzz)
  corpus=build-fuzz/corpus/$name
  mkdir -p "$corpus" build-fuzz/crashes
  echo "== $name: $seconds s"
  log=build-fuzz/$name.log
  # fuzz/<name>.options: more libFuzzer flags for the target, one a line.
  options=()
  [ -f "fuzz/$name.options" ] && mapfile -t options <"fuzz/$name.options"
  if ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
      nice -n 10 "$fuzzer" "${options[@]}" -max_total_time="$seconds" -print_final_stats=1 \
      -artifact_prefix=build-fuzz/crashes/"$name"- "$corpus" "fuzz/corpus/$name" >"$log" 2>&1; then
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    summary+=("$name: $runs runs, corpus $(ls "$corpus" | wc -l) inputs, nothing found")
  else
    tail -n 30 "$log"
    summary+=("$name: FAILED, see $log and build-fuzz/crashes/")
    status=1
  fi
done

seed=${VT_FUZZ_SEED:-$(( (RANDOM << 30) ^ (RANDOM << 15) ^ RANDOM ))}
echo "== argument fuzzer: $calls calls per function, seed $seed"
log=build-asan/argfuzz.log
if QT_QPA_PLATFORM=offscreen VT_FUZZ_SEED=$seed VT_FUZZ_CALLS=$calls \
    VANTRELL_CONFIG_DIR=build-asan/config/argfuzz \
    ASAN_OPTIONS=allocator_may_return_null=1:detect_leaks=1 \
    LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0 \
    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    nice -n 10 build-asan/bin/tst_argfuzz >"$log" 2>&1; then
  total=$(grep -o 'QDEBUG.*: [0-9]* calls, [0-9]* ran' "$log" | awk '{c += $(NF-3); r += $(NF-1)} END {print c " calls, " r " ran"}')
  summary+=("argument fuzzer: $total over $(grep -c 'PASS   : TestArgFuzz::calls' "$log") functions, seed $seed, nothing found")
else
  grep -v '^PASS\|^QDEBUG' "$log" | tail -n 40
  summary+=("argument fuzzer: FAILED, seed $seed, see $log")
  status=1
fi

printf '\n'
printf '%s\n' "${summary[@]}"
exit $status
