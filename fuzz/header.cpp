// Identifier and length octets: the stream functions and quarn_asn1_mem_header() agree, and what is
// written again reads as the same.
#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const Exact input(data, size);
  const Stream in(quarn_stream_new_romem(input.data(), input.size(), 0, nullptr));
  std::uint32_t tag_class = 0;
  int form = 0;
  std::uint64_t number = 0;
  std::int64_t length = 0;
  const bool read =
      quarn_asn1_decode_identifier(in.get(), &tag_class, &form, &number, nullptr, nullptr) == 1 &&
      quarn_asn1_decode_length(in.get(), &length, nullptr, nullptr) == 1;
  quarn_asn1_header header{};
  const int found = quarn_asn1_mem_header(input.data(), input.size(), &header);
  must((found == 1) == read);
  if (!read) return 0;
  must(header.tag_class == tag_class && header.form == form && header.tag_number == number);
  must(header.content_length == length);
  must(header.header_length == quarn_stream_position(in.get()));

  const Stream out(quarn_stream_new_mem(0, nullptr));
  const auto signed_number = static_cast<std::int64_t>(number);
  must(quarn_asn1_encode_identifier(out.get(), tag_class, form, signed_number, nullptr, nullptr) ==
       1);
  must(quarn_asn1_encode_length(out.get(), length, nullptr, nullptr) == 1);
  const auto [octets, count] = held_by(out);
  must(static_cast<std::int64_t>(count) ==
       quarn_asn1_identifier_length(signed_number) + quarn_asn1_length_length(length));
  must(count <= header.header_length);
  quarn_asn1_header again{};
  must(quarn_asn1_mem_header(octets, static_cast<std::int64_t>(count), &again) == 1);
  must(again.tag_number == number && again.content_length == length);
  return 0;
}
