// What the benchmarks share.
//
// Each question is a table: some work, done by this library and by peers that do the same, each
// beside the reference that it is measured against.
//
//     1. Element walk                    ns a certificate   ratio  demanded   allocations  octets
//        OpenSSL ASN1_get_object                      402    1.00                       0       0
//        inside the library                           136    0.34  <= 1.00 ok           0       0
//
// All cases of all questions are run in turns, so that what disturbs the machine disturbs all
// alike; of each the fastest repetition counts. Memory of this library and of the peers is counted
// by the same malloc, in a run of its own before the clock starts.
#ifndef QUARN_BENCH_BENCH_H
#define QUARN_BENCH_BENCH_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bench {

using Octets = std::vector<std::uint8_t>;

// One way to do the work of a question.
struct Case {
  std::string name;
  // Does the work for all operations of the question. Every case must return the same number (of
  // elements, say), or 0 when it has none to compare.
  std::function<std::uint64_t()> work;
  double at_most = 0;  // the greatest ratio to the reference that is good enough; 0: any
  double allocations =
      -1;  // allocations that an operation must make, no more and no fewer; -1: any
  std::string reference = "";  // the case to compare with; the first of the question when empty
  std::size_t operations = 0;  // that the work does; 0: those of the question
};

enum class Measure { kTime, kAllocations, kPeak };

// A demand that the table of a question has no column for. Times and allocations are those of an
// operation, the peak is that of the whole work.
struct Comparison {
  std::string of;
  std::string reference = "";  // to compare with a figure instead of a case when empty
  double at_most;
  Measure measure = Measure::kTime;
};

struct Question {
  std::string title;
  std::string operation;  // what times and allocations are counted for: "certificate"
  std::size_t operations;
  std::vector<Case> cases;
  std::vector<Comparison> comparisons = {};
  std::vector<std::string> notes = {};  // what the reader of the figures must know
};

Question element_walk();
Question generic_tree();
Question text_of_certificates();
Question json_printing();
Question json_to_der();
Question small_values();
std::vector<Question> typed_values();
std::vector<Question> messages();

// Time and memory on hostile input of doubling sizes and memory on real input, printed. False when
// a limit is passed.
bool growth(bool quick);

// The certificates of Debian's ca-certificates as DER.
const std::vector<Octets> &certificates();
std::size_t octets_of_certificates();
// What certificates.sh has made: all DER of a kind, which is the end of the file names.
std::vector<Octets> generated(const std::string &kind);

// What was allocated between the start of a count and now. One count runs at a time.
struct Memory {
  std::uint64_t allocations;
  std::uint64_t octets;  // asked for
  std::int64_t peak;     // most that was held at once, as the allocator rounds it
};
void start_count();
Memory end_count();

// Ends the program when something that must work does not: its figures would mean nothing.
void require(bool good, const std::string &what);

// Work that has no number to compare.
template <typename Function>
std::function<std::uint64_t()> uncounted(Function function) {
  return [function] {
    function();
    return std::uint64_t{0};
  };
}

// The DER of an element around its content.
Octets element(std::uint8_t identifier, const Octets &content);
// A piece so often that there are so many octets or a few more.
Octets repeated(const Octets &piece, std::size_t size);
// The same octets for the same seed, which look like random ones.
Octets random_octets(std::size_t size, std::uint64_t seed);

}  // namespace bench

#endif
