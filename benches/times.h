// What the benchmarks keep of their runs, for the tables that they close with.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

/// The fastest repetition of every run: on a shared machine the least disturbed one says most.
class Times : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      const double seconds =
          run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
      const auto [at, fresh] = best_.try_emplace(run.run_name.function_name, seconds * 1000);
      if (!fresh) at->second = std::min(at->second, seconds * 1000);
    }
  }

  /// In whatever unit the run was entered; not a number if there was no such run.
  double milliseconds(const std::string& name) const {
    const auto found = best_.find(name);
    return found == best_.end() ? std::nan("") : found->second;
  }
  /// The least of those whose names start so.
  double leastMilliseconds(const std::string& start) const {
    double least = std::nan("");
    for (const auto& [name, time] : best_)
      if (name.starts_with(start)) least = std::fmin(least, time);
    return least;
  }

 private:
  std::map<std::string, double> best_;
};
