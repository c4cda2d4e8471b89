// Messages with their content and apart from it. The first two octets name the type id; that of no
// message stands for a signed message in one pass. Both decoders say the same of the same octets,
// up to OCTET STRINGs in segments that open types take as they are; the content, wherever it is
// taken from, is that of the plain value.
#include <algorithm>

#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

namespace {

struct Decoded {
  int result = 0;
  void *value = nullptr;
  std::uint64_t consumed = 0;
};

// Their content is an open type, as that of the signed message in one pass is.
constexpr std::int64_t kWithOpenContent[] = {
    QUARN_ASN1_PKCS7CONTENTINFO, QUARN_ASN1_PKCS12PFX,     QUARN_ASN1_PKCS7DIGESTEDDATA,
    QUARN_ASN1_PKCS7SIGNEDDATA,  QUARN_ASN1_CMSSIGNEDDATA, QUARN_ASN1_AUTHENTICODE_TIMESTAMPREQ,
    QUARN_ASN1_ARCHIVETIMESTAMP,
};
// An OCTET STRING.
constexpr std::int64_t kWithString[] = {
    QUARN_ASN1_CMSENCAPSULATEDCONTENTINFO,
    QUARN_ASN1_CMSENCRYPTEDCONTENTINFO,
    QUARN_ASN1_CMSENCRYPTEDDATA,
    QUARN_ASN1_CMSENVELOPEDDATA,
    QUARN_ASN1_CMSAUTHDATA,
    QUARN_ASN1_SIGNEDANDENVELOPEDDATA,
};

template <std::size_t kCount>
bool has(const std::int64_t (&types)[kCount], std::int64_t type) {
  return std::ranges::find(types, type) != std::end(types);
}

quarn_pkcs7signeddata *&signed_data(Decoded &decoded) {
  return reinterpret_cast<quarn_pkcs7signeddata *&>(decoded.value);
}

Decoded plain(quarn_stream *stream, std::int64_t type) {
  Decoded out;
  out.result = type == 0 ? quarn_asn1_decode_pkcs7signeddata(stream, &signed_data(out),
                                                             &out.consumed, nullptr)
                         : quarn_asn1_decode(stream, type, &out.value, &out.consumed, nullptr);
  return out;
}

Decoded apart(quarn_stream *stream,
              std::int64_t type,
              quarn_stream *content,
              quarn_asn1_content_place *place) {
  Decoded out;
  out.result = type == 0
                   ? quarn_asn1_decode_pkcs7signeddata_ex(stream, content, &signed_data(out), place,
                                                          &out.consumed, nullptr)
                   : quarn_asn1_decode_message(stream, static_cast<std::uint32_t>(type), content,
                                               &out.value, place, &out.consumed, nullptr);
  return out;
}

std::int64_t value_type(std::int64_t type) {
  return type == 0 ? QUARN_ASN1_PKCS7SIGNEDDATA : type;
}

bool same_places(const quarn_pkcs7signeddata *a, const quarn_pkcs7signeddata *b) {
  return quarn_pkcs7signeddata_gettype(a) == quarn_pkcs7signeddata_gettype(b) &&
         quarn_pkcs7signeddata_getcontentinfooffset(a) ==
             quarn_pkcs7signeddata_getcontentinfooffset(b) &&
         quarn_pkcs7signeddata_getcontentinfoendoffset(a) ==
             quarn_pkcs7signeddata_getcontentinfoendoffset(b) &&
         quarn_pkcs7signeddata_getsignerinfosoffset(a) ==
             quarn_pkcs7signeddata_getsignerinfosoffset(b);
}

// The stream over the content where it lies gives what was passed on. What differs on purpose: an
// open type of tag [0], which it takes for an OCTET STRING.
void compare_in_place(const Exact &input,
                      const quarn_asn1_content_place &place,
                      const Octets &content,
                      bool open) {
  if (place.offset < 0) return;
  must(place.end <= input.size() && place.length <= place.end - place.offset);
  if (open && (input.data()[place.offset] & 0xDF) == 0x80) return;
  const Stream source(quarn_stream_new_romem(input.data(), input.size(), 0, nullptr));
  const Stream stream(quarn_asn1_contentstream_new(
      source.get(), static_cast<std::uint64_t>(place.offset), nullptr));
  const Stream out(quarn_stream_new_mem(0, nullptr));
  must(stream != nullptr);
  must(quarn_stream_writefromstream(out.get(), stream.get(), nullptr, nullptr) == 1);
  must(same(held_by(out), content));
}

// What both decoders make of the same octets.
void compare(const Exact &input, std::int64_t type) {
  const Stream whole(quarn_stream_new_romem(input.data(), input.size(), 0, nullptr));
  const Stream again(quarn_stream_new_romem(input.data(), input.size(), 0, nullptr));
  const Stream third(quarn_stream_new_romem(input.data(), input.size(), 0, nullptr));
  const Stream content(quarn_stream_new_mem(0, nullptr));
  quarn_asn1_content_place place{};
  quarn_asn1_content_place skipped{};
  const Decoded held = plain(whole.get(), type);
  const Decoded passed = apart(again.get(), type, content.get(), &place);
  const Decoded dropped = apart(third.get(), type, nullptr, &skipped);
  must(passed.result == dropped.result && passed.consumed == dropped.consumed);
  must((passed.value == nullptr) == (dropped.value == nullptr));
  must(place.offset == skipped.offset && place.end == skipped.end &&
       place.length == skipped.length);
  if (passed.result == 1) {
    must(held.result == 1 && held.consumed == passed.consumed);
    must((held.value == nullptr) == (passed.value == nullptr));
  }
  if (passed.value != nullptr) {
    if (value_type(type) == QUARN_ASN1_PKCS7SIGNEDDATA) {
      must(same_places(static_cast<quarn_pkcs7signeddata *>(held.value),
                       static_cast<quarn_pkcs7signeddata *>(passed.value)));
    }
    const Octets octets = held_by(content);
    must(place.offset < 0 || static_cast<std::uint64_t>(place.length) == octets.count);
    compare_in_place(input, place, octets, !has(kWithString, type));
  }
  for (const Decoded &each : {held, passed, dropped}) {
    quarn_asn1_value_free(value_type(type), each.value);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  if (size < 3) return 0;
  const std::int64_t type = data[0] << 8 | data[1];
  const bool message = has(kWithOpenContent, type) || has(kWithString, type);
  compare(Exact(data + 2, size - 2), message ? type : 0);
  return 0;
}
