// The C interface of the JSON mapping.
#include "quarn_asn1/json.h"

#include "json/json.h"

using namespace quarn::asn1;

namespace {

// What was written, in one block for the caller.
quarn_data_blob *blob_of(const json::BackWriter &written) {
  if (written.size() == 0) return quarn_data_blob_new(nullptr, 0);
  auto *octets = quarn::util::allocate_array<std::uint8_t>(written.size());
  if (octets == nullptr) return nullptr;
  std::uint8_t *next = octets;
  written.each_piece([&next](json::BackWriter::Slice slice) {
    std::memcpy(next, slice.octets, slice.count);
    next += slice.count;
    return true;
  });
  auto *blob = quarn_data_blob_adopt(octets, static_cast<std::int64_t>(written.size()));
  if (blob == nullptr) quarn_free(octets);
  return blob;
}

}  // namespace

quarn_json *quarn_asn1_tojson(const uint8_t *octets, int64_t length) {
  if (octets == nullptr || length < 1) return nullptr;
  return json::render(octets, static_cast<std::size_t>(length));
}

quarn_data_blob *quarn_asn1_encodejson(quarn_json *j) {
  json::BackWriter out;
  return json::write_document(out, j) ? blob_of(out) : nullptr;
}

int quarn_asn1_encodejsoninstream(quarn_stream *s, quarn_json *j) {
  json::BackWriter out;
  if (s == nullptr || !json::write_document(out, j)) return 0;
  int result = 1;
  out.each_piece([&](json::BackWriter::Slice slice) {
    result = quarn_stream_writen(s, slice.octets, static_cast<int64_t>(slice.count), nullptr);
    return result == 1;
  });
  return result;
}
