// 1. Element walk: how long does it take to read the identifier and length of every element of a
// certificate, and nothing else?
#include "bench/walk.h"

#include <botan/ber_dec.h>
#include <mbedtls/asn1.h>
#include <openssl/asn1.h>

#include "bench/bench.h"
#include "bench/peers.h"
#include "quarn_asn1/core.h"

namespace bench {

namespace {

template <typename Walk>
std::uint64_t walk_all(Walk walk) {
  Seen seen;
  for (const Octets &der : certificates()) seen = walk(der.data(), der.size(), seen);
  return seen.result();
}

// The loop around peers that read one header at a time. header(octets, count, found) is false when
// the header is bad.
template <typename Header>
Seen walk_headers(const std::uint8_t *octets, std::size_t count, Seen seen, Header header) {
  while (count > 0) {
    Found found{};
    if (!header(octets, count, found)) return {};
    seen.add(found.number, found.length);
    const std::size_t step = found.header + (found.constructed ? 0 : found.length);
    if (step > count) return {};
    octets += step;
    count -= step;
  }
  return seen;
}

bool header_quarn(const std::uint8_t *octets, std::size_t count, Found &found) {
  quarn_asn1_header header;
  if (quarn_asn1_mem_header(octets, static_cast<std::int64_t>(count), &header) != 1) return false;
  found = {header.tag_number, static_cast<std::size_t>(header.content_length),
           static_cast<std::size_t>(header.header_length), header.form == 0};
  return true;
}

bool header_openssl(const std::uint8_t *octets, std::size_t count, Found &found) {
  const std::uint8_t *next = octets;
  long length = 0;
  int number = 0;
  int tag_class = 0;
  const int result = ASN1_get_object(&next, &length, &number, &tag_class, static_cast<long>(count));
  if ((result & 0x80) != 0) return false;
  found = {static_cast<std::uint64_t>(number), static_cast<std::size_t>(length),
           static_cast<std::size_t>(next - octets), (result & V_ASN1_CONSTRUCTED) != 0};
  return true;
}

// Knows tag numbers of one octet only, and wants to be told which one to find.
bool header_mbedtls(const std::uint8_t *octets, std::size_t count, Found &found) {
  auto *next = const_cast<std::uint8_t *>(octets);
  std::size_t length = 0;
  if (mbedtls_asn1_get_tag(&next, octets + count, &length, octets[0]) != 0) return false;
  found = {octets[0] & 0x1Fu, length, static_cast<std::size_t>(next - octets),
           (octets[0] & MBEDTLS_ASN1_CONSTRUCTED) != 0};
  return true;
}

// A caller who has a stream pays for two calls an element and a third to move on; with octets at
// hand the walk above is the quick one, and what is demanded is demanded of that.
Seen walk_stream(const std::uint8_t *octets, std::size_t count, Seen seen) {
  quarn_stream *stream =
      quarn_stream_new_romem(octets, static_cast<std::int64_t>(count), 0, nullptr);
  for (std::uint64_t at = 0; at < count;) {
    std::uint32_t tag_class = 0;
    int primitive = 0;
    std::uint64_t number = 0;
    std::int64_t length = 0;
    std::uint64_t identifier_octets = 0;
    std::uint64_t length_octets = 0;
    if (quarn_asn1_decode_identifier(stream, &tag_class, &primitive, &number, &identifier_octets,
                                     nullptr) != 1 ||
        quarn_asn1_decode_length(stream, &length, &length_octets, nullptr) != 1) {
      seen = {};
      break;
    }
    seen.add(number, static_cast<std::uint64_t>(length));
    at += identifier_octets + length_octets;
    if (primitive != 1) continue;
    at += static_cast<std::uint64_t>(length);
    quarn_stream_ctrl(stream, QUARN_STREAM_SEEK, &at, nullptr);
  }
  quarn_stream_free(stream);
  return seen;
}

// Copies the content of each element, which no caller can avoid.
Seen walk_botan(Botan::BER_Decoder &decoder, Seen seen) {
  for (;;) {
    Botan::BER_Object object = decoder.get_next_object();
    if (!object.is_set()) return seen;
    seen.add(object.type(), object.length());
    if ((object.get_class() & Botan::CONSTRUCTED) == 0) continue;
    Botan::BER_Decoder inner(object);
    seen = walk_botan(inner, seen);
  }
}

template <typename Header>
Case case_of(const char *name, Header header, double at_most = 0) {
  return {.name = name,
          .work =
              [header] {
                return walk_all([header](const std::uint8_t *octets, std::size_t count, Seen seen) {
                  return walk_headers(octets, count, seen, header);
                });
              },
          .at_most = at_most};
}

}  // namespace

Question element_walk() {
  // Lambdas, so that each peer's loop is compiled for it alone.
  return {"1. Element walk",
          "certificate",
          certificates().size(),
          {
              case_of("OpenSSL ASN1_get_object",
                      [](auto o, auto n, auto &f) { return header_openssl(o, n, f); }),
              {.name = "inside the library",
               .work = [] { return walk_all(walk_inside); },
               .at_most = 1.0,
               .allocations = 0},
              case_of(
                  "C interface, mem_header",
                  [](auto o, auto n, auto &f) { return header_quarn(o, n, f); }, 2.0),
              {.name = "C interface, memory stream", .work = [] { return walk_all(walk_stream); }},
              case_of("mbedTLS get_tag",
                      [](auto o, auto n, auto &f) { return header_mbedtls(o, n, f); }),
              case_of("libtasn1 get_tag_der, get_length_der",
                      [](auto o, auto n, auto &f) { return header_libtasn1(o, n, f); }),
              case_of("Heimdal der_get_tag, der_get_length",
                      [](auto o, auto n, auto &f) { return header_heimdal(o, n, f); }),
              {.name = "Botan BER_Decoder (copies content)",
               .work =
                   [] {
                     return walk_all([](const std::uint8_t *octets, std::size_t count, Seen seen) {
                       Botan::BER_Decoder decoder(octets, count);
                       return walk_botan(decoder, seen);
                     });
                   }},
          }};
}

}  // namespace bench
