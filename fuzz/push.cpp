// Push decoders: slices make no difference; a string is an element, and its content is what the
// other decoder finds, unless an empty segment ended it early.
#include <algorithm>

#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

namespace {

using AnyContext =
    std::unique_ptr<quarn_asn1_decode_any_ctx, quarn::cli::FreedBy<quarn_asn1_decode_any_ctx_free>>;
using StringContext = std::unique_ptr<quarn_asn1_decode_octetstring_ctx,
                                      quarn::cli::FreedBy<quarn_asn1_decode_octetstring_ctx_free>>;

// Lengths of slices: all at once, one octet each, or as the octets themselves have it.
enum class Cut { nowhere, everywhere, anywhere };

struct End {
  bool failed = false;
  bool finished = false;
  std::int64_t taken = 0;  // unless it failed
  bool operator==(const End &) const = default;
};

template <typename Update>
End fed(const Exact &input, Cut cut, Update update) {
  End end;
  for (std::int64_t at = 0; at < input.size();) {
    std::int64_t count = cut == Cut::nowhere ? input.size() : 1;
    if (cut == Cut::anywhere) count += input.data()[at] % 7;
    count = std::min(count, input.size() - at);
    const Exact slice(input.data() + at, static_cast<std::size_t>(count));
    std::int64_t left = -1;
    const bool failed = update(slice.data(), count, &left) != 1;
    must(failed ? left == 0 : left >= 0 && left <= count);
    if (failed) return {.failed = true};
    end.taken += count - left;
    at += count;
  }
  return end;
}

End any(const Exact &input, Cut cut, Blob &value) {
  const AnyContext c(quarn_asn1_decode_any_ctx_new());
  End end = fed(input, cut, [&](const std::uint8_t *data, std::int64_t count, std::int64_t *left) {
    return quarn_asn1_decode_any_update(c.get(), data, count, left);
  });
  end.finished = quarn_asn1_decode_any_isfinish(c.get()) == 1;
  void *element = nullptr;
  const int result = quarn_asn1_decode_any_ctx_toobject(c.get(), QUARN_ASN1_ANY, &element);
  must((result == QUARN_ASN1_MORE) == (!end.failed && !end.finished));
  if (result != 1) return end;
  value.reset(quarn_asn1_mem_encode(QUARN_ASN1_ANY, element));
  quarn_asn1_value_free(QUARN_ASN1_ANY, element);
  must(value != nullptr && equal(*value, input.data(), end.taken));
  return end;
}

End string(const Exact &input, Cut cut, quarn_stream *content) {
  const StringContext c(quarn_asn1_decode_octetstring_ctx_new());
  End end = fed(input, cut, [&](const std::uint8_t *data, std::int64_t count, std::int64_t *left) {
    return quarn_asn1_decode_octetstring_update(c.get(), content, data, count, left);
  });
  end.finished = quarn_asn1_decode_octetstring_isfinish(c.get()) == 1;
  const std::int64_t length = quarn_asn1_decode_octetstring_ctx_getencodelength(c.get());
  must((length >= 0) == end.finished);
  if (end.finished && end.taken == input.size()) must(length == end.taken);
  return end;
}

// What the decoder of whole values makes of the same octets.
void compare_with_value(const Exact &input, const End &end, const Stream &content) {
  void *value = nullptr;
  const std::int64_t consumed =
      quarn_asn1_mem_decode(input.data(), input.size(), QUARN_ASN1_OCTETSTRING, &value);
  if (consumed == end.taken) {
    const Stream out(quarn_stream_new_mem(0, nullptr));
    const auto length = quarn_asn1_content_length(QUARN_ASN1_OCTETSTRING, value);
    must(quarn_asn1_encode_content(out.get(), QUARN_ASN1_OCTETSTRING, value, length, nullptr,
                                   nullptr) == 1);
    must(same(held_by(out), held_by(content)));
  }
  quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, value);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const Exact input(data, size);
  Blob value;
  const End element = any(input, Cut::nowhere, value);
  const Stream content(quarn_stream_new_mem(0, nullptr));
  const End segments = string(input, Cut::nowhere, content.get());
  for (const Cut cut : {Cut::everywhere, Cut::anywhere}) {
    Blob again;
    must(any(input, cut, again) == element);
    must((again == nullptr) == (value == nullptr));
    const Stream out(quarn_stream_new_mem(0, nullptr));
    must(string(input, cut, out.get()) == segments);
    if (segments.finished) must(same(held_by(out), held_by(content)));
  }
  if (!segments.finished) return 0;
  must(element == segments);
  compare_with_value(input, segments, content);
  return 0;
}
