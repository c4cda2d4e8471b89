#include "cli/guess.h"

#include <strings.h>

#include <algorithm>

#include "cli/candidates.h"
#include "cli/failure.h"
#include "cli/handles.h"
#include "cli/options.h"
#include "cli/walk.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kMostReasons = 6;

// The name of a type, with the registered one where several types have the same.
std::string full_name(std::int64_t type_id) {
  const std::string name = notation_of(type_id);
  std::int64_t first = 1;
  while (first < type_id && notation_of(first) != name) first++;
  return first == type_id ? name : name + " (" + description_of(type_id).name + ")";
}

// Where octets stop being what a type demands, and why.
Report report_of(const Decoded &tried, Octets octets) {
  Report report;
  report.records = tried.records();
  if (report.records.empty()) {
    report.found = tried.reason();
  } else {
    const std::int64_t offset = innermost(report.records).offset;
    place_at(report, octets, static_cast<std::uint64_t>(std::max<std::int64_t>(offset, 0)));
  }
  if (!tried.path().empty()) report.path = tried.path();
  if (tried.too_deep()) blame_depth(report);
  return report;
}

bool nearer(const Refusal &a, const Refusal &b) {
  return a.offset > b.offset;
}

// Why octets are refused is found out for the few types of which it is told: to walk them and to
// look for names takes longer than to try all types.
Refusal refusal_of(const Decoded &tried) {
  const std::vector<Record> &records = tried.records();
  return {tried.type_id(), records.empty() ? 0 : innermost(records).offset};
}

Sight sight_of(const Candidate &candidate, const Decoded &value) {
  return candidate.sight(node_of(value.type_id(), value.get()));
}

Tried why_not(const Decoded &value, Octets octets) {
  const Report report = report_of(value, octets);
  const std::string rule =
      report.records.empty() ? "" : ", " + printable(innermost(report.records).message);
  return {notation_of(value.type_id()), report.offset, report.path, "found " + report.found + rule};
}

// The type that a label tells; null when it tells none.
const Candidate *told_by(const std::string &label) {
  const auto all = candidates();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Candidate &one) { return one.has_label(label); });
  return found == all.end() ? nullptr : &*found;
}

// Tries one type; whether it settles the matter.
bool try_type(Guess &result, const Candidate &candidate, Octets octets) {
  Decoded value(candidate.type_id, octets);
  if (value.get() == nullptr) {
    result.failed.push_back(refusal_of(value));
    return false;
  }
  const Sight sight = sight_of(candidate, value);
  if (sight == Sight::no) return false;
  if (result.value.get() == nullptr || sight == Sight::sure) {
    result.value = std::move(value);
    result.others.clear();
  } else {
    result.others.push_back(candidate.type_id);
  }
  return sight == Sight::sure;
}

bool same_word(const std::string &a, const std::string &b) {
  return strcasecmp(a.c_str(), b.c_str()) == 0;
}

UsageError no_such_type(const std::string &command, const std::string &name) {
  std::vector<std::string> names;
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    names.emplace_back(description_of(id).name);
    names.push_back(notation_of(id));
  }
  const std::string near = nearest(name, names);
  return {command,
          "there is no type " + in_quotes(name) +
              (near.empty() ? "; 'quarn types' lists them" : "; did you mean '" + near + "'?")};
}

}  // namespace

std::string expected_of(std::int64_t type_id, const std::vector<Record> &records) {
  const std::string whole = full_name(type_id);
  for (const Record &record : records) {
    for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
      if (description_of(id).error_code + 1 == record.code)
        return notation_of(id) + ", in a value of " + whole;
    }
  }
  return "a value of " + whole;
}

Guess guess(Octets octets, const std::string &label) {
  Guess result;
  if (const Candidate *told = told_by(label)) {
    result.value = Decoded(told->type_id, octets);
    if (result.value.get() == nullptr) result.failed.push_back(refusal_of(result.value));
    return result;
  }
  for (const Candidate &candidate : candidates()) {
    if (try_type(result, candidate, octets)) break;
  }
  std::stable_sort(result.failed.begin(), result.failed.end(), nearer);
  return result;
}

Decoded recognise(Octets octets, const std::string &label) {
  if (const Candidate *told = told_by(label)) return {told->type_id, octets};
  for (const Candidate &candidate : candidates()) {
    Decoded value(candidate.type_id, octets);
    if (value.get() != nullptr && sight_of(candidate, value) == Sight::sure) return value;
  }
  return {};
}

Failure no_type(const Guess &guess, Octets octets) {
  Report report;
  report.found = "no value of these types";
  for (const Refusal &refusal : guess.failed) {
    if (report.tried.size() == kMostReasons) break;
    report.tried.push_back(why_not(Decoded(refusal.type_id, octets), octets));
  }
  if (!report.tried.empty()) report.offset = report.tried.front().offset;
  const std::string count = counted(guess.failed.size(), "type");
  return failure_of(std::move(report), octets,
                    "is of none of the " + count + " tried; --type names another");
}

Decoded decode_as(std::int64_t type_id, Octets octets) {
  Decoded value(type_id, octets);
  if (value.get() != nullptr) return value;
  if (!well_formed(octets)) throw diagnose(octets, value.reason());
  Report report = report_of(value, octets);
  if (!value.too_deep()) report.expected = expected_of(type_id, report.records);
  throw failure_of(std::move(report), octets);
}

std::int64_t find_type(const std::string &name) {
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (name == std::to_string(id) || same_word(name, description_of(id).name)) return id;
  }
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (same_word(name, notation_of(id))) return id;
  }
  return -1;
}

std::int64_t type_named(const std::string &command, const std::string &name) {
  const std::int64_t found = find_type(name);
  if (found < 0) throw no_such_type(command, name);
  return found;
}

}  // namespace quarn::cli
