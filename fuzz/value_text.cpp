// Text forms of values: object identifiers, times, decimal numbers, Unicode. The first octet
// chooses.
#include <string>

#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

namespace {

// What a constructor accepts encodes, and decodes to the same text.
void oid(const std::string &text, bool relative) {
  const std::int64_t type = relative ? QUARN_ASN1_RELATIVE_OID : QUARN_ASN1_OID;
  quarn_asn1_oid *value =
      relative ? quarn_asn1_relative_oid_new(text.c_str()) : quarn_asn1_oid_new(text.c_str());
  if (value == nullptr) return;
  const Blob encoding(quarn_asn1_mem_encode(type, value));
  must(encoding != nullptr);
  void *again = nullptr;
  must(quarn_asn1_mem_decode(encoding->data, encoding->length, type, &again) == encoding->length);
  // The text read back has no superfluous zeros; made from it, the octets are the same.
  const char *text_again = quarn_asn1_oid_getstring(static_cast<quarn_asn1_oid *>(again));
  quarn_asn1_oid *third =
      relative ? quarn_asn1_relative_oid_new(text_again) : quarn_asn1_oid_new(text_again);
  const Blob same(quarn_asn1_mem_encode(type, third));
  must(same != nullptr && equal(*same, encoding->data, encoding->length));
  quarn_asn1_value_free(type, value);
  quarn_asn1_value_free(type, again);
  quarn_asn1_value_free(type, third);
}

// The text as the content of a time: what decodes keeps its text and holds a real instant.
void time_text(const std::uint8_t *data, std::int64_t size, std::int64_t type) {
  const Stream stream(quarn_stream_new_romem(data, size, 0, nullptr));
  void *value = nullptr;
  if (quarn_asn1_decode_content(stream.get(), type, &value, 1, size, nullptr, nullptr) != 1) return;
  must(quarn_asn1_content_length(type, value) == size);
  quarn_time *time = quarn_asn1_time_getutctime(static_cast<quarn_asn1_time *>(value));
  must(time != nullptr && quarn_time_getmonth(time) >= 1);
  const std::uint32_t form = type == QUARN_ASN1_UTCTIME ? 0x10 : 0x11;
  quarn_asn1_value_free(type, quarn_asn1_time_newutctime(time, form));
  quarn_time_free(time);
  quarn_asn1_value_free(type, value);
}

void decimal(const std::string &text) {
  quarn_biginteger *number = quarn_biginteger_newdec(text.c_str(), nullptr);
  if (number == nullptr) return;
  char *printed = nullptr;
  std::size_t length = 0;
  must(quarn_biginteger_todec(number, &printed, &length) == 1);
  const Blob data(quarn_biginteger_getdata(number));
  quarn_biginteger *again = quarn_biginteger_newdec(printed, nullptr);
  const Blob same(quarn_biginteger_getdata(again));
  must(data != nullptr && same != nullptr && equal(*same, data->data, data->length));
  quarn_free(printed);
  quarn_biginteger_free(number);
  quarn_biginteger_free(again);
}

void unicode(const std::uint8_t *data, std::int64_t size) {
  for (auto *make : {quarn_ustring_newutf8, quarn_ustring_newbmp, quarn_ustring_newutf32be}) {
    quarn_ustring *string = make(data, size);
    if (string == nullptr) continue;
    std::uint8_t *utf8 = nullptr;
    std::int64_t count = 0;
    must(quarn_ustring_toutf8(string, &utf8, &count) == 1);
    must(quarn_utf8_valid(utf8, count) == 1);
    for (auto *convert : {quarn_ustring_tobmp, quarn_ustring_toutf32be}) {
      std::uint8_t *octets = nullptr;
      convert(string, &octets, &count);
      quarn_free(octets);
    }
    quarn_free(utf8);
    quarn_ustring_free(string);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  if (size == 0) return 0;
  const Exact input(data + 1, size - 1);
  const std::string text(reinterpret_cast<const char *>(input.data()), size - 1);
  switch (data[0] % 6) {
    case 0:
    case 1:
      oid(text, data[0] % 6 == 1);
      break;
    case 2:
      time_text(input.data(), input.size(), QUARN_ASN1_UTCTIME);
      break;
    case 3:
      time_text(input.data(), input.size(), QUARN_ASN1_GENTIME);
      break;
    case 4:
      decimal(text);
      break;
    default:
      unicode(input.data(), input.size());
  }
  return 0;
}
