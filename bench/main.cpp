// Runs all cases in turns and prints a table for each question.
//   quarn_bench [--quick] [flags of Google Benchmark]
// --benchmark_filter=growth runs the last question alone.
// The exit code is 1 when a demand is missed.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

#include "bench/bench.h"

namespace bench {

namespace {

std::string full_name(const Question &question, const Case &one) {
  return question.title + "/" + one.name;
}

// Keeps the fastest repetition of each case, and says how far the run is.
class Fastest : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context & /*context*/) override { return true; }

  void ReportRuns(const std::vector<Run> &runs) override {
    for (const Run &run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double time = run.GetAdjustedCPUTime();
      const auto [at, first] = times_.emplace(run.run_name.function_name, time);
      at->second = std::min(at->second, time);
    }
  }

  // Nanoseconds of one run of a case's work; not a number when it was filtered out.
  double of(const Question &question, const Case &one) const {
    const auto at = times_.find(full_name(question, one));
    return at == times_.end() ? NAN : at->second;
  }

 private:
  std::map<std::string, double> times_;
};

// Runs every case twice, the second time with its memory counted, and sees that all cases of a
// question did the same.
std::map<std::string, Memory> count_memory(const std::vector<Question> &questions) {
  std::map<std::string, Memory> memory;
  for (const Question &question : questions) {
    std::uint64_t agreed = 0;
    for (const Case &one : question.cases) {
      const std::uint64_t result = one.work();
      start_count();
      one.work();
      memory[full_name(question, one)] = end_count();
      require(agreed == 0 || result == 0 || result == agreed,
              "compare " + full_name(question, one) + ", which does other work than the first");
      if (agreed == 0) agreed = result;
    }
  }
  return memory;
}

void register_all(const std::vector<Question> &questions) {
  for (const Question &question : questions) {
    for (const Case &one : question.cases) {
      benchmark::RegisterBenchmark(full_name(question, one).c_str(),
                                   [&one](benchmark::State &state) {
                                     for (auto _ : state) benchmark::DoNotOptimize(one.work());
                                   });
    }
  }
}

const Case &reference_of(const Question &question, const Case &one) {
  const auto at = std::find_if(question.cases.begin(), question.cases.end(),
                               [&](const Case &c) { return c.name == one.reference; });
  return at == question.cases.end() ? question.cases.front() : *at;
}

// "<= 1.00 ok", or nothing when nothing is demanded.
std::string verdict(double ratio, double at_most) {
  if (at_most <= 0) return "";
  char text[32];
  std::snprintf(text, sizeof text, "<= %.2f %s", at_most, ratio <= at_most ? "ok" : "MISSED");
  return text;
}

bool print_case(const Question &question, const Case &one, const Fastest &fastest, Memory memory) {
  const auto operations = static_cast<double>(question.operations);
  const double time = fastest.of(question, one);
  if (std::isnan(time)) return true;
  const double ratio = time / fastest.of(question, reference_of(question, one));
  const double allocations = static_cast<double>(memory.allocations) / operations;
  const bool wrong_count = one.allocations >= 0 && allocations != one.allocations;
  std::printf("   %-46s %12.1f %9.3f  %-14s %10.1f%s %10.0f\n", one.name.c_str(), time / operations,
              ratio, verdict(ratio, one.at_most).c_str(), allocations, wrong_count ? " MISSED" : "",
              static_cast<double>(memory.octets) / operations);
  return !wrong_count && (one.at_most <= 0 || !(ratio > one.at_most));
}

bool print_table(const Question &question,
                 const Fastest &fastest,
                 const std::map<std::string, Memory> &memory) {
  if (std::all_of(question.cases.begin(), question.cases.end(),
                  [&](const Case &one) { return std::isnan(fastest.of(question, one)); })) {
    return true;
  }
  std::printf("\n%s\n   %-46s %12s %9s  %-14s %10s %10s\n", question.title.c_str(),
              ("for one " + question.operation).c_str(), "ns", "ratio", "demanded", "allocations",
              "octets");
  bool good = true;
  for (const Case &one : question.cases) {
    good = print_case(question, one, fastest, memory.at(full_name(question, one))) && good;
  }
  return good;
}

// Google Benchmark's flags: ours first, so that those of the caller win.
void initialize(std::vector<std::string> arguments, bool quick) {
  const std::vector<std::string> defaults = {
      "--benchmark_enable_random_interleaving=true",
      quick ? "--benchmark_repetitions=5" : "--benchmark_repetitions=15",
      quick ? "--benchmark_min_time=0.01" : "--benchmark_min_time=0.03",
  };
  arguments.insert(arguments.begin() + 1, defaults.begin(), defaults.end());
  std::vector<char *> pointers;
  pointers.reserve(arguments.size());
  for (std::string &argument : arguments) pointers.push_back(argument.data());
  int count = static_cast<int>(pointers.size());
  benchmark::Initialize(&count, pointers.data());
  require(!benchmark::ReportUnrecognizedArguments(count, pointers.data()), "use these flags");
}

int run(std::vector<std::string> arguments) {
  const auto quick_flag = std::find(arguments.begin(), arguments.end(), "--quick");
  const bool quick = quick_flag != arguments.end();
  if (quick) arguments.erase(quick_flag);
  initialize(arguments, quick);

  const std::vector<Question> questions = {element_walk(),  generic_tree(), text_of_certificates(),
                                           json_printing(), json_to_der(),  small_values()};
  std::printf("%zu certificates of %zu octets on average\n", certificates().size(),
              octets_of_certificates() / certificates().size());
  const std::map<std::string, Memory> memory = count_memory(questions);
  register_all(questions);
  Fastest fastest;
  const std::string filter = benchmark::GetBenchmarkFilter();
  if (filter != "growth") benchmark::RunSpecifiedBenchmarks(&fastest);
  bool good = true;
  for (const Question &question : questions) {
    good = print_table(question, fastest, memory) && good;
  }
  if (filter.empty() || filter == "growth") good = growth(quick) && good;
  std::printf("\n%s\n", good ? "every demand is met" : "a demand is MISSED");
  return good ? 0 : 1;
}

}  // namespace

}  // namespace bench

int main(int argc, char **argv) {
  return bench::run({argv, argv + argc});
}
