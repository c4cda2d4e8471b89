// 6. Typed values: certificates, requests, CRLs and names, decoded, encoded, copied and compared.
#include "bench/typed/typed.h"

#include <algorithm>
#include <deque>
#include <memory>

#include "bench/libraries.h"

namespace bench {

namespace {

Libraries<Library> &registered() {
  static Libraries<Library> all({"OpenSSL", "quarn", "Heimdal", "GnuTLS", "Botan", "mbedTLS"});
  return all;
}

const std::vector<Library> &libraries() {
  static const std::vector<Library> kAll = registered().built();
  return kAll;
}

const std::vector<Octets> &all_certificates() {
  static const std::vector<Octets> kAll = [] {
    std::vector<Octets> all = certificates();
    for (Octets &der : generated("crt")) all.push_back(std::move(der));
    return all;
  }();
  return kAll;
}

const std::vector<Octets> &requests() {
  static const std::vector<Octets> kAll = generated("csr");
  return kAll;
}

// Cases of a question, one for each library that can do what is asked.
class Cases {
 public:
  explicit Cases(std::string title) : title_(std::move(title)) {}

  // A case that does something with each input. Refusals are said: they cost less than the work.
  void add(const Library &library,
           const std::string &suffix,
           bool (*function)(const Octets &),
           const std::vector<Octets> &inputs,
           double at_most = 0,
           std::size_t operations = 0,
           const std::string &reference = "") {
    if (function == nullptr) return;
    const auto refused = std::count_if(inputs.begin(), inputs.end(),
                                       [&](const Octets &der) { return !function(der); });
    if (refused != 0) {
      note(std::string(library.name) + " refuses " + std::to_string(refused) + " of " +
           std::to_string(inputs.size()) + ": its figures are too good");
    }
    cases_.push_back({.name = library.name + suffix,
                      .work = uncounted([function, &inputs] {
                        for (const Octets &der : inputs) function(der);
                      }),
                      .at_most = at_most,
                      .reference = reference,
                      .operations = operations});
  }

  // A case that does something with each certificate, which it has decoded before. The sum of the
  // results is what all must agree in.
  template <typename Result>
  void add_kept(const Library &library,
                Result (*function)(void *),
                void (*change)(void *) = nullptr,
                double at_most = 0) {
    if (function == nullptr) return;
    const auto kept = std::make_shared<Kept>(library);
    for (void *one : kept->all) {
      if (change != nullptr) change(one);
    }
    cases_.push_back({.name = library.name,
                      .work =
                          [function, kept] {
                            std::uint64_t sum = 0;
                            for (void *one : kept->all) sum += function(one);
                            return sum;
                          },
                      .at_most = at_most});
  }

  Question question(const std::string &operation,
                    std::size_t operations,
                    std::vector<Comparison> comparisons = {}) {
    for (const char *name : registered().names()) {
      const auto is_its = [name](const Case &one) { return one.name.starts_with(name); };
      if (std::none_of(cases_.begin(), cases_.end(), is_its)) note(registered().absence(name));
    }
    return {title_,           operation, operations, std::move(cases_), std::move(comparisons),
            std::move(notes_)};
  }

  void note(const std::string &text) { notes_.push_back(text); }

 private:
  struct Kept {
    explicit Kept(const Library &library) : release(library.release) {
      for (const Octets &der : all_certificates()) {
        all.push_back(library.load(der));
        require(all.back() != nullptr, std::string("decode a certificate with ") + library.name);
      }
    }
    Kept(const Kept &) = delete;
    Kept &operator=(const Kept &) = delete;
    ~Kept() {
      for (void *one : all) release(one);
    }

    std::vector<void *> all;
    void (*release)(void *);
  };

  std::string title_;
  std::vector<Case> cases_;
  std::vector<std::string> notes_;
};

Question decoded() {
  Cases cases("6a. Certificate to typed values, freed");
  for (const Library &library : libraries()) {
    cases.add(library, "", library.certificate, all_certificates());
    cases.add(library, ", from a memory stream", library.certificate_from_stream,
              all_certificates());
    cases.add(library, ", with extensions", library.certificate_and_extensions, all_certificates(),
              of_ours(library, 0.05));
  }
  const std::string ours = "quarn, with extensions";
  return cases.question("certificate", all_certificates().size(),
                        {{.of = ours, .reference = "Heimdal, with extensions", .at_most = 1.25},
                         {.of = ours, .at_most = 100, .measure = Measure::kAllocations}});
}

Question encoded_anew() {
  Cases cases("6b. Certificate encoded from its values");
  for (const Library &library : libraries()) {
    cases.add_kept(library, library.encode_anew, library.change, of_ours(library, 0.45));
  }
  return cases.question("certificate", all_certificates().size(),
                        {{.of = "quarn", .reference = "Heimdal", .at_most = 0.9}});
}

Question encoded_untouched() {
  Cases cases("6c. Certificate encoded as it came");
  for (const Library &library : libraries()) {
    cases.add_kept(library, library.encode, nullptr, of_ours(library, 1.5));
  }
  return cases.question("certificate", all_certificates().size());
}

Question copied() {
  Cases cases("6d. Certificate copied, the copy freed");
  for (const Library &library : libraries()) cases.add_kept(library, library.copy);
  return cases.question("certificate", all_certificates().size());
}

Question requests_decoded() {
  Cases cases("6e. Certification request to typed values, freed");
  for (const Library &library : libraries()) {
    cases.add(library, "", library.request, requests(), of_ours(library, 0.07));
  }
  return cases.question("request", requests().size());
}

struct Length {
  std::size_t entries;
  const char *suffix;
};
constexpr Length kLengths[] = {
    {200000, ", 200,000 entries"}, {10000, ", 10,000 entries"}, {10, ", 10 entries"}};

// CRLs of each length. The time is that of an entry.
Question lists_decoded(const std::string &title, bool extensions) {
  static std::deque<std::vector<Octets>> kept;  // for as long as the cases, as all inputs
  Cases cases(title);
  for (const auto &[entries, suffix] : kLengths) {
    const std::vector<Octets> &inputs = kept.emplace_back(1, revocation_list(entries, extensions));
    for (const Library &library : libraries()) {
      if (extensions && library.most_entries != 0 && entries > library.most_entries) {
        cases.note(std::string(library.name) + suffix + ": left out, takes minutes");
        continue;
      }
      const double at_most = entries == kLengths[0].entries ? 0.6 : 0;
      cases.add(library, suffix, library.list, inputs, of_ours(library, at_most), entries,
                std::string("OpenSSL") + suffix);
    }
  }
  const std::string ours = "quarn, 200,000 entries";
  return cases.question("entry", 0,
                        {{.of = ours,
                          .reference = "OpenSSL, 200,000 entries",
                          .at_most = 1.5,
                          .measure = Measure::kPeak},
                         {.of = ours, .reference = "quarn, 10,000 entries", .at_most = 1.5}});
}

Question names_compared() {
  Cases cases("6h. Issuer compared with subject");
  for (const Library &library : libraries()) cases.add_kept(library, library.same_names);
  return cases.question("certificate", all_certificates().size());
}

Question names_sorted() {
  static const std::vector<Octets> kNames{name_to_sort()};
  Cases cases("6i. Name of eight attributes in falling order decoded, sorted, freed");
  for (const Library &library : libraries()) {
    cases.add(library, "", library.sorted_name, kNames);
  }
  return cases.question("name", 1);
}

}  // namespace

bool known_library(const Library &library) {
  return registered().add(library);
}

std::vector<Question> typed_values() {
  return {decoded(),
          encoded_anew(),
          encoded_untouched(),
          copied(),
          requests_decoded(),
          lists_decoded("6f. CRL of entries without extensions", false),
          lists_decoded("6g. CRL, a reason in every 2nd entry, a date in every 4th", true),
          names_compared(),
          names_sorted()};
}

}  // namespace bench
