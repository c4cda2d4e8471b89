// 7. Growth: do time and memory stay in proportion when hostile input doubles, and how much memory
// does real input take?
#include <malloc.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "bench/bench.h"
#include "quarn_asn1/json.h"

namespace bench {

namespace {

constexpr double kMostGrowth = 2.3;   // of time when the input doubles
constexpr double kMostJsonTree = 40;  // octets held for an octet of real input
constexpr double kMostAnyTree = 4;
constexpr int kRepetitions = 3;

// Elements one in the other, of definite length: made from the inside out, back to front.
Octets nested(std::uint8_t identifier, std::size_t size) {
  Octets reversed{0x00, 0x05};
  reversed.reserve(size + 8);
  while (reversed.size() < size) {
    std::size_t length = reversed.size();
    std::uint8_t octets = 0;
    if (length < 0x80) {
      reversed.push_back(static_cast<std::uint8_t>(length));
    } else {
      for (; length > 0; length >>= 8, octets++) {
        reversed.push_back(static_cast<std::uint8_t>(length));
      }
      reversed.push_back(static_cast<std::uint8_t>(0x80 | octets));
    }
    reversed.push_back(identifier);
  }
  return {reversed.rbegin(), reversed.rend()};
}

Octets nested_indefinite(std::size_t size) {
  Octets all = repeated({0x30, 0x80}, size / 2);
  all.resize(2 * all.size());
  return all;
}

// A string of indefinite length in segments of one octet.
Octets segments(std::size_t size) {
  Octets all{0x24, 0x80};
  const Octets content = repeated({0x04, 0x01, 0x41}, size);
  all.insert(all.end(), content.begin(), content.end());
  all.resize(all.size() + 2);
  return all;
}

// A SET OF whose elements are in the worst order to be sorted in.
Octets falling_set(std::size_t size) {
  Octets content;
  for (std::size_t i = size / 6; i-- > 0;) {
    const auto octet = [i](int shift) { return static_cast<std::uint8_t>(i >> shift); };
    content.insert(content.end(), {0x04, 0x04, octet(24), octet(16), octet(8), octet(0)});
  }
  return element(0x31, content);
}

struct Family {
  const char *name;
  Octets (*make)(std::size_t size);
};

constexpr Family kFamilies[] = {
    {"(30 80)*n, closed", nested_indefinite},
    {"(30 80)*n, open",
     [](std::size_t size) {
       return repeated({0x30, 0x80}, size);
     }},
    {"(30 len)*n", [](std::size_t size) { return nested(0x30, size); }},
    {"(A0 len)*n", [](std::size_t size) { return nested(0xA0, size); }},
    {"24 80 (04 01 41)*n", segments},
    {"30 len (05 00)*n",
     [](std::size_t size) {
       return element(0x30, repeated({5, 0}, size));
     }},
    {"30 len (30 00)*n",
     [](std::size_t size) {
       return element(0x30, repeated({0x30, 0}, size));
     }},
    {"30 len (02 02 00 01)*n",
     [](std::size_t size) {
       return element(0x30, repeated({2, 2, 0, 1}, size));
     }},
    {"30 len (06 03 2A 03 04)*n",
     [](std::size_t size) {
       return element(0x30, repeated({6, 3, 0x2A, 3, 4}, size));
     }},
    {"31 len (04 04 falling)*n", falling_set},
    {"06 len (2A)*n", [](std::size_t size) { return element(6, Octets(size, 0x2A)); }},
    {"02 len (5A)*n", [](std::size_t size) { return element(2, Octets(size, 0x5A)); }},
    {"0C len (01)*n", [](std::size_t size) { return element(0x0C, Octets(size, 1)); }},
};

double now() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// Time and memory of one step of the work on one input. A step that has nothing to work on, because
// an earlier one refused, is not measured.
struct Figure {
  double seconds = 0;
  double peak = 0;  // octets held for one of input
};

enum Step { kDecode, kTojson, kPrint, kParse, kEncode, kFree, kSteps };
constexpr const char *kStepNames[kSteps] = {"ANY list", "tojson", "print",
                                            "parse",    "encode", "free"};
using Figures = std::array<Figure, kSteps>;

// Runs work, which returns whether it succeeded, and keeps the best of its time. All memory that is
// free goes back to the system first: else what an earlier step has left decides how much of this
// one's has to be fetched anew.
template <typename Work>
bool measure(Figure &figure, std::size_t size, Work work) {
  malloc_trim(0);
  start_count();
  const double start = now();
  const bool good = work();
  const double seconds = now() - start;
  figure.peak = static_cast<double>(end_count().peak) / static_cast<double>(size);
  figure.seconds = figure.seconds == 0 ? seconds : std::min(figure.seconds, seconds);
  return good;
}

bool decode_list(const Octets &input) {
  const auto size = static_cast<std::int64_t>(input.size());
  for (const quarn_asn1_type_id type : {QUARN_ASN1_ANY, QUARN_ASN1_ANYLIST}) {
    void *value = nullptr;
    quarn_asn1_mem_decode(input.data(), size, type, &value);
    quarn_asn1_value_free(type, value);
  }
  return true;
}

// One way through all steps.
void all_steps(const Octets &input, Figures &figures) {
  quarn_json *json = nullptr;
  char *text = nullptr;
  std::size_t length = 0;
  const auto step = [&](Step which, auto work) {
    return measure(figures[which], input.size(), work);
  };
  step(kDecode, [&] { return decode_list(input); });
  bool good = step(kTojson, [&] {
    json = quarn_asn1_tojson(input.data(), static_cast<std::int64_t>(input.size()));
    return json != nullptr;
  });
  good = good && step(kPrint, [&] { return quarn_json_print(json, 0, &text, &length) == 1; });
  if (good) {
    step(kFree, [&] {
      quarn_json_free(json);
      return true;
    });
    json = nullptr;
  }
  good = good && step(kParse, [&] {
           json = quarn_json_parse(text, length, nullptr);
           return json != nullptr;
         });
  quarn_free(text);
  good = good && step(kEncode, [&] {
           quarn_data_blob *blob = quarn_asn1_encodejson(json);
           const bool made = blob != nullptr;
           quarn_data_blob_free(blob);
           return made;
         });
  quarn_json_free(json);
}

// The step's line of a family; false when it grows too fast.
bool print_step(const Family &family, Step step, const std::vector<Figures> &sizes) {
  const Figure &last = sizes.back()[step];
  if (last.seconds == 0) return true;
  double ratio = 0;
  for (std::size_t i = 1; i < sizes.size(); i++) {
    ratio = std::max(ratio, sizes[i][step].seconds / sizes[i - 1][step].seconds);
  }
  const auto doublings = static_cast<double>(sizes.size() - 1);
  const double average = std::pow(last.seconds / sizes.front()[step].seconds, 1 / doublings);
  // What takes no time to speak of has nothing to grow.
  const bool good = ratio <= kMostGrowth || last.seconds < 1e-3;
  std::printf("   %-28s %-9s", family.name, kStepNames[step]);
  for (const Figures &figures : sizes) std::printf(" %9.2f", figures[step].seconds * 1e3);
  std::printf("  %5.2f %5.2f %-7s %7.1f\n", average, ratio, good ? "ok" : "MISSED", last.peak);
  return good;
}

bool family_growth(const Family &family, bool quick) {
  std::vector<Octets> inputs;
  for (std::size_t size = std::size_t{1} << 20; size <= std::size_t{8} << 20; size *= 2) {
    inputs.push_back(family.make(quick ? size / 8 : size));
  }
  std::vector<Figures> figures(inputs.size());
  for (int repetition = 0; repetition < kRepetitions; repetition++) {
    for (std::size_t i = 0; i < inputs.size(); i++) all_steps(inputs[i], figures[i]);
  }
  bool good = true;
  for (int step = 0; step < kSteps; step++) {
    good = print_step(family, static_cast<Step>(step), figures) && good;
  }
  return good;
}

// The most that work holds for an octet of a certificate.
template <typename Work>
bool real_memory(const char *name, double at_most, Work work) {
  double most = 0;
  for (const Octets &der : certificates()) {
    start_count();
    work(der.data(), static_cast<std::int64_t>(der.size()));
    most = std::max(most, static_cast<double>(end_count().peak) / static_cast<double>(der.size()));
  }
  std::printf("   %-28s %7.1f  <= %.0f %s\n", name, most, at_most,
              most <= at_most ? "ok" : "MISSED");
  return most <= at_most;
}

}  // namespace

bool growth(bool quick) {
  // Fixed limits, which the allocator would otherwise move by what it has seen.
  mallopt(M_MMAP_THRESHOLD, 128 << 10);
  mallopt(M_TRIM_THRESHOLD, 128 << 10);
  std::printf(
      "\n7. Growth on hostile input: milliseconds at %s octets, ratio of a "
      "doubling on average and at most (demanded: %.1f), octets held for one of input\n",
      quick ? "128, 256, 512 and 1024 Ki" : "1, 2, 4 and 8 Mi", kMostGrowth);
  bool good = true;
  for (const Family &family : kFamilies) good = family_growth(family, quick) && good;
  std::printf("\n   Octets held for one of a certificate, at most\n");
  good = real_memory("JSON tree", kMostJsonTree,
                     [](const std::uint8_t *octets, std::int64_t count) {
                       quarn_json_free(quarn_asn1_tojson(octets, count));
                     }) &&
         good;
  good = real_memory("ANY", kMostAnyTree,
                     [](const std::uint8_t *octets, std::int64_t count) {
                       void *value = nullptr;
                       quarn_asn1_mem_decode(octets, count, QUARN_ASN1_ANYLIST, &value);
                       quarn_asn1_value_free(QUARN_ASN1_ANYLIST, value);
                     }) &&
         good;
  return good;
}

}  // namespace bench
