// Google Benchmark's console table, keeping each case's real time so that a
// program can print it as a ratio against its baseline from the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

// Keeps the console output and remembers each case's real time.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    RatioReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& r : runs)
            if (!r.error_occurred) {
                m_times[r.benchmark_name()] = r.GetAdjustedRealTime();
                m_cpuTimes[r.benchmark_name()] = r.GetAdjustedCPUTime();
            }
    }
    // The median when the cases were repeated, else the one run.
    double time(const std::string& name) const { return lookup(m_times, name); }
    // The same for CPU time, steadier than real time on a busy machine.
    double cpuTime(const std::string& name) const { return lookup(m_cpuTimes, name); }

private:
    static double lookup(const std::map<std::string, double>& times, const std::string& name)
    {
        auto it = times.find(name + "_median");
        if (it == times.end())
            it = times.find(name);
        return it == times.end() ? 0 : it->second;
    }

    std::map<std::string, double> m_times;
    std::map<std::string, double> m_cpuTimes;
};
