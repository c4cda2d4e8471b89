#include "cli/open.h"

#include <algorithm>
#include <new>
#include <tuple>
#include <utility>

#include "cli/handles.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

// By place and identifier, in the order of both.
struct PlacedOpening {
  Place place;
  std::string_view dotted;
  Opening opening;
};

struct DataComponent {
  std::int64_t record;
  std::string_view component;
  Opening opening;
};

struct NamedComponent {
  std::int64_t record;
  std::string_view component;
  const char *names;
};

#include "cli/gen/openings.inc"

std::string reason_of(const std::vector<Record> &records, const std::string &path) {
  if (records.empty()) return "unknown reason";
  const Record &first = innermost(records);
  const std::string place = first.offset < 0 ? "" : "offset " + std::to_string(first.offset) + ": ";
  return place + (path.empty() ? "" : path + ": ") + printable(first.message);
}

}  // namespace

const OpenRecord *open_record(std::int64_t type_id) {
  const auto *end = std::end(kRecords);
  const auto *found = std::find_if(std::begin(kRecords), end, [type_id](const OpenRecord &record) {
    return record.type_id == type_id;
  });
  return found == end ? nullptr : found;
}

const Opening *find_opening(Place place, std::string_view dotted) {
  const auto before = [](const PlacedOpening &a, const PlacedOpening &b) {
    return std::tie(a.place, a.dotted) < std::tie(b.place, b.dotted);
  };
  const auto *end = std::end(kOpenings);
  const auto *found =
      std::lower_bound(std::begin(kOpenings), end, PlacedOpening{place, dotted, {}}, before);
  if (found == end || found->place != place || found->dotted != dotted) return nullptr;
  return &found->opening;
}

std::vector<std::string> identifiers_of(std::int64_t type_id) {
  std::vector<std::string> found;
  for (const PlacedOpening &row : kOpenings) {
    if (row.opening.type_id != type_id) continue;
    found.push_back(kPlaceNames[static_cast<std::size_t>(row.place)] +
                    (" " + std::string(row.dotted)));
  }
  return found;
}

const Opening *data_opening(std::int64_t record_type, std::string_view component) {
  for (const DataComponent &row : kData) {
    if (row.record == record_type && row.component == component) return &row.opening;
  }
  return nullptr;
}

const char *component_names(std::int64_t record_type, std::string_view component) {
  for (const auto &row : kNamed) {
    if (row.record == record_type && component == row.component) return row.names;
  }
  return nullptr;
}

std::string name_of(const char *names, std::uint64_t number) {
  std::string_view rest = names == nullptr ? "" : names;
  while (number-- > 0 && !rest.empty()) {
    rest.remove_prefix(std::min(rest.find(','), rest.size() - 1) + 1);
  }
  return std::string(rest.substr(0, rest.find(',')));
}

Decoded::Decoded(std::int64_t type_id, Octets octets) : type_id_(type_id) {
  const Records ctx = new_records();
  const auto count = static_cast<std::int64_t>(octets.size());
  const Stream stream(quarn_stream_new_romem(octets.data(), count, 0, ctx.get()));
  if (stream == nullptr) throw std::bad_alloc();
  std::uint64_t consumed = 0;
  const int result = quarn_asn1_decode(stream.get(), type_id, &value_, &consumed, ctx.get());
  if (result != 1) {
    records_ = records_of(ctx.get());
    path_ = quarn_err_ctx_path(ctx.get());
    too_deep_ = result == QUARN_ERROR_RECURSION;
    reason_ = too_deep_ ? "nested too deep" : reason_of(records_, path_);
  } else if (consumed != octets.size()) {
    reason_ = counted(octets.size() - consumed, "octet") + " after its end";
    quarn_asn1_value_free(type_id_, std::exchange(value_, nullptr));
  }
}

Decoded::Decoded(Decoded &&other) noexcept
    : type_id_(other.type_id_),
      value_(std::exchange(other.value_, nullptr)),
      reason_(std::move(other.reason_)),
      too_deep_(other.too_deep_),
      records_(std::move(other.records_)),
      path_(std::move(other.path_)) {}

Decoded &Decoded::operator=(Decoded &&other) noexcept {
  std::swap(type_id_, other.type_id_);
  std::swap(value_, other.value_);
  std::swap(reason_, other.reason_);
  std::swap(too_deep_, other.too_deep_);
  std::swap(records_, other.records_);
  std::swap(path_, other.path_);
  return *this;
}

Decoded::~Decoded() {
  quarn_asn1_value_free(type_id_, value_);
}

}  // namespace quarn::cli
