#!/usr/bin/env bash
# Release build of the benchmarks. Prints Google Benchmark's table, then each
# case as a ratio against its baseline measured in the same run. QCustomPlot
# is a peer to compare the Plotter with, needed by nothing else.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
vt_install_deps libbenchmark-dev libqcustomplot-dev

cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DVT_BUILD_TESTS=OFF -DVT_BUILD_BENCH=ON
cmake --build build-bench -j"$(nproc)" --target vtbench vtpagesbench vtplotbench vtdialogs
QT_QPA_PLATFORM=offscreen build-bench/bin/vtbench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true "$@"
QT_QPA_PLATFORM=offscreen build-bench/bin/vtpagesbench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true "$@"
QT_QPA_PLATFORM=offscreen build-bench/bin/vtplotbench --benchmark_repetitions=5 --benchmark_report_aggregates_only=true "$@"
