// Benchmarks of the computation functions through the engine, each printed
// as a ratio against a plain pass over the same data measured in the same
// run, so that the numbers mean something on any machine.

#include "engine.h"
#include "escapesplit_reference.h"
#include "escapesplitter.h"
#include "ratioreporter.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>

namespace {

constexpr std::size_t kPoints = 10'000'000;
constexpr int kCycles = 1000;

const vtkit::ScriptValue& wave()
{
    static const vtkit::ScriptValue* w = [] {
        std::vector<double> x(kPoints), y(kPoints);
        for (std::size_t i = 0; i < kPoints; ++i) {
            x[i] = double(i) * 1e-7;
            y[i] = std::sin(2 * M_PI * kCycles * double(i) / double(kPoints));
        }
        return new vtkit::ScriptValue(vtkit::ScriptValue::waveform(y, x, "Voltage", "Time"));
    }();
    return *w;
}

const std::string& text()
{
    static const std::string* t = [] {
        auto* s = new std::string;
        const char* words[] = {"alpha", "be\\ ta", "gamma,delta", "ep\\,silon", "zeta\t"};
        for (std::size_t i = 0; s->size() < (1u << 20); ++i) {
            *s += words[i % 5];
            *s += ' ';
        }
        return s;
    }();
    return *t;
}

vtkit::Engine& engine()
{
    static vtkit::Engine* e = [] {
        auto* engine = new vtkit::Engine;
        if (!engine->load(VT_MODULE_PATH))
            std::abort();
        return engine;
    }();
    return *e;
}

void PlainPass(benchmark::State& state)
{
    const vtkit::ScriptValue& w = wave();
    for (auto _ : state) {
        double sum = 0;
        for (std::size_t i = 0; i < kPoints; ++i)
            sum += w.values[i] * w.x[i];
        benchmark::DoNotOptimize(sum);
    }
}

void PerCycleValueRms(benchmark::State& state)
{
    using vtkit::ScriptValue;
    const std::vector<ScriptValue> args = {wave(), ScriptValue::fromReals({0}),
                                           ScriptValue::fromStrings({"rms"}),
                                           ScriptValue::fromStrings({""}),
                                           ScriptValue::fromReals({1})};
    for (auto _ : state) {
        vtkit::CallResult r = engine().call("PerCycleValue", args);
        if (r.value.values.size() < 2 * (kCycles - 2))
            state.SkipWithError("too few cycles");
        benchmark::DoNotOptimize(r);
    }
}

void PerCycleTimingFrequency(benchmark::State& state)
{
    using vtkit::ScriptValue;
    const std::vector<ScriptValue> args = {wave(), ScriptValue::fromStrings({"frequency"})};
    for (auto _ : state) {
        vtkit::CallResult r = engine().call("PerCycleTiming", args);
        benchmark::DoNotOptimize(r);
    }
}

void PlainScan(benchmark::State& state)
{
    const std::string& t = text();
    for (auto _ : state) {
        std::size_t parts = 0;
        for (char c : t)
            parts += (c == ' ' || c == ',' || c == '\t');
        benchmark::DoNotOptimize(parts);
    }
}

void ParseEscape(benchmark::State& state)
{
    const std::vector<vtkit::ScriptValue> args = {vtkit::ScriptValue::fromStrings({text()})};
    for (auto _ : state) {
        vtkit::CallResult r = engine().call("ParseEscape", args);
        benchmark::DoNotOptimize(r);
    }
}

void ScanEscape(benchmark::State& state)
{
    using vtkit::ScriptValue;
    const std::vector<ScriptValue> args = {ScriptValue::fromStrings({text()}),
                                           ScriptValue::fromStrings({" "})};
    for (auto _ : state) {
        vtkit::CallResult r = engine().call("ScanEscape", args);
        benchmark::DoNotOptimize(r);
    }
}

// The splitting alone, without the copies a result needs: the regular
// expression definition, and the hand-written splitter that replaced it.
void SplitDefinition(benchmark::State& state)
{
    for (auto _ : state) {
        std::vector<std::string> parts = escapesplit::reference(text(), " \t,", false);
        benchmark::DoNotOptimize(parts);
    }
}

void SplitByHand(benchmark::State& state)
{
    const escapesplit::Splitter splitter(" \t,");
    for (auto _ : state) {
        escapesplit::Parts parts;
        splitter.split(text(), false, &parts);
        benchmark::DoNotOptimize(parts);
    }
}

BENCHMARK(PlainPass)->Unit(benchmark::kMillisecond);
BENCHMARK(PerCycleValueRms)->Unit(benchmark::kMillisecond);
BENCHMARK(PerCycleTimingFrequency)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainScan)->Unit(benchmark::kMillisecond);
BENCHMARK(ParseEscape)->Unit(benchmark::kMillisecond);
BENCHMARK(ScanEscape)->Unit(benchmark::kMillisecond);
BENCHMARK(SplitDefinition)->Unit(benchmark::kMillisecond);
BENCHMARK(SplitByHand)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    wave();
    text();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    struct Ratio {
        const char* name;
        const char* base;
        double target;
    };
    const Ratio ratios[] = {{"PerCycleValueRms", "PlainPass", 3.0},
                            {"PerCycleTimingFrequency", "PlainPass", 0},
                            {"ParseEscape", "PlainScan", 0},
                            {"ScanEscape", "PlainScan", 0},
                            {"SplitDefinition", "PlainScan", 0},
                            {"SplitByHand", "PlainScan", 0}};
    std::printf("\n%-26s %-12s %8s %s\n", "case", "baseline", "ratio", "target");
    for (const Ratio& r : ratios) {
        // CPU time: on a shared machine real time also counts the waits for a core.
        const double t = reporter.cpuTime(r.name);
        const double b = reporter.cpuTime(r.base);
        if (t <= 0 || b <= 0)
            continue;
        char target[32] = "-";
        if (r.target > 0)
            std::snprintf(target, sizeof target, "<= %.1f %s", r.target,
                          t / b <= r.target ? "met" : "MISSED");
        std::printf("%-26s %-12s %8.2f %s\n", r.name, r.base, t / b, target);
    }
    return 0;
}
