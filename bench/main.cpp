// Runs all cases in turns and prints a table for each question.
//   quarn_bench [--quick] [flags of Google Benchmark]
// --benchmark_filter=growth runs the last question alone.
// The exit code is 1 when a demand is missed.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cctype>
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

struct Results {
  Fastest fastest;
  std::map<std::string, Memory> memory;  // by full name
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

double operations_of(const Question &question, const Case &one) {
  return static_cast<double>(one.operations == 0 ? question.operations : one.operations);
}

// What there is to say of a case. Times are not numbers when it was filtered out.
double figure(const Results &results, const Question &question, const Case &one, Measure measure) {
  const Memory &memory = results.memory.at(full_name(question, one));
  switch (measure) {
    case Measure::kTime:
      return results.fastest.of(question, one) / operations_of(question, one);
    case Measure::kAllocations:
      return static_cast<double>(memory.allocations) / operations_of(question, one);
    case Measure::kPeak:
      return static_cast<double>(memory.peak);
  }
  return NAN;
}

// False too when the reference was filtered out: the demand is not shown to be met.
bool print_case(const Results &results, const Question &question, const Case &one) {
  const double time = figure(results, question, one, Measure::kTime);
  if (std::isnan(time)) return true;
  const double ratio =
      time / figure(results, question, reference_of(question, one), Measure::kTime);
  const double allocations = figure(results, question, one, Measure::kAllocations);
  const bool wrong_count = one.allocations >= 0 && allocations != one.allocations;
  const Memory &memory = results.memory.at(full_name(question, one));
  std::printf("   %-46s %12.1f %9.3f  %-14s %10.1f%s %10.0f %10lld\n", one.name.c_str(), time,
              ratio, verdict(ratio, one.at_most).c_str(), allocations, wrong_count ? " MISSED" : "",
              static_cast<double>(memory.octets) / operations_of(question, one),
              static_cast<long long>(memory.peak));
  return !wrong_count && (one.at_most <= 0 || ratio <= one.at_most);
}

// False too when a case of it could not be measured.
bool print_comparison(const Results &results,
                      const Question &question,
                      const Comparison &comparison) {
  const auto value = [&](const std::string &name) {
    const auto at = std::find_if(question.cases.begin(), question.cases.end(),
                                 [&](const Case &c) { return c.name == name; });
    return at == question.cases.end() ? NAN : figure(results, question, *at, comparison.measure);
  };
  constexpr const char *kMeasures[] = {"time", "allocations", "peak"};
  std::string text = comparison.of + ": " + kMeasures[static_cast<int>(comparison.measure)];
  if (!comparison.reference.empty()) text += " to that of " + comparison.reference;
  const double against = comparison.reference.empty() ? 1 : value(comparison.reference);
  const double ratio = value(comparison.of) / against;
  if (std::isnan(ratio)) {
    std::printf("   %-68s  not measured\n", text.c_str());
    return false;
  }
  std::printf("   %-68s %.3f  %s\n", text.c_str(), ratio,
              verdict(ratio, comparison.at_most).c_str());
  return ratio <= comparison.at_most;
}

bool print_table(const Results &results, const Question &question) {
  const bool filtered_out =
      std::all_of(question.cases.begin(), question.cases.end(),
                  [&](const Case &one) { return std::isnan(results.fastest.of(question, one)); });
  if (filtered_out) return true;
  std::printf("\n%s\n   %-46s %12s %9s  %-14s %10s %10s %10s\n", question.title.c_str(),
              ("for one " + question.operation).c_str(), "ns", "ratio", "demanded", "allocations",
              "octets", "most held");
  bool good = true;
  for (const Case &one : question.cases) good = print_case(results, question, one) && good;
  for (const Comparison &comparison : question.comparisons) {
    good = print_comparison(results, question, comparison) && good;
  }
  for (const std::string &note : question.notes) std::printf("   %s\n", note.c_str());
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

// All questions, but for a filter like ^8 only those of that number: others take time to prepare.
std::vector<Question> questions_of(const std::string &filter) {
  const auto wanted = [&](char number) {
    const bool one_number = filter.size() > 1 && filter[0] == '^' && std::isdigit(filter[1]);
    return filter != "growth" && (!one_number || filter[1] == number);
  };
  std::vector<Question> all;
  const auto add = [&](char number, auto... make) {
    if (wanted(number)) (all.push_back(make()), ...);
  };
  add('1', element_walk);
  add('2', generic_tree);
  add('3', text_of_certificates);
  add('4', json_printing, json_to_der);
  add('5', small_values);
  const auto add_family = [&](char number, std::vector<Question> (*make)()) {
    if (!wanted(number)) return;
    for (Question &question : make()) all.push_back(std::move(question));
  };
  add_family('6', typed_values);
  add_family('8', messages);
  return all;
}

int run(std::vector<std::string> arguments) {
  const auto quick_flag = std::find(arguments.begin(), arguments.end(), "--quick");
  const bool quick = quick_flag != arguments.end();
  if (quick) arguments.erase(quick_flag);
  initialize(arguments, quick);
  setvbuf(stdout, nullptr, _IOLBF, 0);

  std::printf("%zu certificates of %zu octets on average\n", certificates().size(),
              octets_of_certificates() / certificates().size());
  const std::string filter = benchmark::GetBenchmarkFilter();
  const std::vector<Question> questions = questions_of(filter);
  Results results;
  results.memory = count_memory(questions);
  register_all(questions);
  if (filter != "growth") benchmark::RunSpecifiedBenchmarks(&results.fastest);
  bool good = true;
  for (const Question &question : questions) good = print_table(results, question) && good;
  if (filter.empty() || filter == "growth") good = growth(quick) && good;
  std::printf("\n%s\n", good ? "every demand is met" : "a demand is MISSED");
  return good ? 0 : 1;
}

}  // namespace

}  // namespace bench

int main(int argc, char **argv) {
  return bench::run({argv, argv + argc});
}
