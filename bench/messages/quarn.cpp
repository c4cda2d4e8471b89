// This library. Decoding a message makes values of all that is in it but the extensions of
// certificates, which stay octets, and the content, which is kept as one ANY or goes elsewhere.
#include <openssl/evp.h>

#include "bench/messages/messages.h"
#include "quarn_asn1/cms.h"
#include "quarn_asn1/message.h"
#include "quarn_asn1/types.h"

namespace bench {

namespace {

// A stream that counts what is written to it.
quarn_stream *counting_stream(std::uint64_t &size) {
  static constexpr quarn_stream_callbacks kCallbacks = {
      .read = nullptr,
      .write =
          [](void *user, const void *, std::int64_t count) {
            *static_cast<std::uint64_t *>(user) += static_cast<std::uint64_t>(count);
            return 1;
          },
      .length = nullptr,
      .seek = nullptr,
      .close = nullptr};
  return quarn_stream_new_callback(&kCallbacks, &size, nullptr);
}

quarn_stream *over(const Octets &der) {
  return quarn_stream_new_romem(der.data(), static_cast<std::int64_t>(der.size()), 0, nullptr);
}

quarn_stream *over(const std::string &path) {
  return quarn_stream_new_file(path.c_str(), "r", nullptr);
}

template <typename Source>
std::uint64_t decode_message(const Source &source) {
  quarn_stream *in = over(source);
  quarn_pkcs7signeddata *message = nullptr;
  quarn_asn1_decode_pkcs7signeddata(in, &message, nullptr, nullptr);
  require(message != nullptr, "decode a message");
  quarn_pkcs7signeddata_free(message);
  quarn_stream_free(in);
  return 0;
}

template <typename Source>
std::uint64_t decode_to(const Source &source, quarn_stream *content) {
  quarn_stream *in = over(source);
  quarn_pkcs7signeddata *message = nullptr;
  quarn_asn1_content_place place{};
  quarn_asn1_decode_pkcs7signeddata_ex(in, content, &message, &place, nullptr, nullptr);
  require(message != nullptr, "decode a message");
  quarn_pkcs7signeddata_free(message);
  quarn_stream_free(content);
  quarn_stream_free(in);
  return static_cast<std::uint64_t>(place.length);
}

template <typename Source>
std::uint64_t decode_to_counter(const Source &source) {
  std::uint64_t size = 0;
  decode_to(source, counting_stream(size));
  return size;
}

// A value of a type in a ContentInfo.
void *decode_in_content_info(quarn_asn1_type_id type, const Octets &der) {
  void *outer = nullptr;
  const auto count = static_cast<std::int64_t>(der.size());
  quarn_asn1_mem_decode(der.data(), count, QUARN_ASN1_PKCS7CONTENTINFO, &outer);
  require(outer != nullptr, "decode a ContentInfo");
  auto *info = static_cast<quarn_pkcs7contentinfo *>(outer);
  void *value = nullptr;
  quarn_asn1_any_toobject(quarn_pkcs7contentinfo_getcontent(info), type, &value, nullptr);
  require(value != nullptr, "decode the content of a ContentInfo");
  quarn_pkcs7contentinfo_free(info);
  return value;
}

std::uint64_t enveloped(const Octets &der) {
  quarn_asn1_value_free(QUARN_ASN1_CMSENVELOPEDDATA,
                        decode_in_content_info(QUARN_ASN1_CMSENVELOPEDDATA, der));
  return 0;
}

// Finds the content of the ContentInfo, goes back to it, and decodes it with or without its own.
std::uint64_t enveloped_in_place(const Octets &der, bool apart) {
  quarn_stream *in = over(der);
  void *outer = nullptr;
  void *value = nullptr;
  quarn_asn1_content_place place{};
  quarn_asn1_decode_message(in, QUARN_ASN1_PKCS7CONTENTINFO, nullptr, &outer, &place, nullptr,
                            nullptr);
  auto offset = static_cast<std::uint64_t>(place.offset);
  quarn_stream_ctrl(in, QUARN_STREAM_SEEK, &offset, nullptr);
  constexpr quarn_asn1_type_id kType = QUARN_ASN1_CMSENVELOPEDDATA;
  if (apart) {
    quarn_asn1_decode_message(in, kType, nullptr, &value, nullptr, nullptr, nullptr);
  } else {
    quarn_asn1_decode(in, kType, &value, nullptr, nullptr);
  }
  require(outer != nullptr && value != nullptr, "decode an enveloped message");
  quarn_asn1_value_free(kType, value);
  quarn_asn1_value_free(QUARN_ASN1_PKCS7CONTENTINFO, outer);
  quarn_stream_free(in);
  return 0;
}

std::size_t encode(void *message) {
  quarn_data_blob *blob = quarn_asn1_mem_encode(QUARN_ASN1_CMSENVELOPEDDATA, message);
  const std::int64_t size = blob == nullptr ? 0 : blob->length;
  quarn_data_blob_free(blob);
  return static_cast<std::size_t>(size);
}

const quarn_pkcs7signeddata *message_to_write() {
  static const quarn_pkcs7signeddata *const made = [] {
    quarn_stream *in = over(signed_message(1 << 10));
    quarn_pkcs7signeddata *message = nullptr;
    quarn_asn1_decode_pkcs7signeddata(in, &message, nullptr, nullptr);
    quarn_stream_free(in);
    return message;
  }();
  return made;
}

const bool kKnown = known_messages(
    {.name = "quarn",
     .signed_message = decode_message<Octets>,
     .signed_file = decode_to_counter<std::string>,
     .enveloped = enveloped,
     .load_enveloped =
         [](const Octets &der) { return decode_in_content_info(QUARN_ASN1_CMSENVELOPEDDATA, der); },
     .encode_enveloped = encode});

}  // namespace

std::uint64_t decode_rows(const Octets &der) {
  quarn_asn1_value_free(QUARN_ASN1_PKCS7SIGNEDDATA,
                        decode_in_content_info(QUARN_ASN1_PKCS7SIGNEDDATA, der));
  return 0;
}

std::uint64_t decode_apart(const Octets &der) {
  return decode_to(der, nullptr);
}

std::uint64_t decode_content_aside(const Octets &der) {
  return decode_to_counter(der);
}

std::uint64_t decode_content_kept(const Octets &der) {
  quarn_stream *content = quarn_stream_new_mem(0, nullptr);
  // Room for all of it at once: a stream that grows as it is written to copies what it has.
  std::uint8_t *room = nullptr;
  std::uint64_t size = 0;
  require(quarn_memstream_reserve(content, der.size(), &room, &size, nullptr) == 1,
          "reserve memory");
  return decode_to(der, content);
}

std::uint64_t decode_file_apart(const std::string &path) {
  return decode_to(path, nullptr);
}

std::uint64_t decode_enveloped_in_place(const Octets &der) {
  return enveloped_in_place(der, false);
}

std::uint64_t decode_enveloped_apart(const Octets &der) {
  return enveloped_in_place(der, true);
}

void write_signed(const Octets &content, std::size_t piece, bool digest) {
  const quarn_pkcs7signeddata *message = message_to_write();
  std::uint64_t size = 0;
  quarn_stream *out = counting_stream(size);
  EVP_MD_CTX *hash = digest ? EVP_MD_CTX_new() : nullptr;
  if (digest) EVP_DigestInit_ex(hash, EVP_sha256(), nullptr);
  int result = quarn_asn1_encode_signeddata_init(out, message, 0, nullptr);
  for (std::size_t at = 0; at < content.size() && result == 1; at += piece) {
    const std::size_t count = std::min(piece, content.size() - at);
    if (digest) EVP_DigestUpdate(hash, content.data() + at, count);
    result = quarn_asn1_encode_octetstring_update(out, content.data() + at,
                                                  static_cast<std::int64_t>(count));
  }
  if (digest) {
    std::uint8_t octets[EVP_MAX_MD_SIZE];
    EVP_DigestFinal_ex(hash, octets, nullptr);
    EVP_MD_CTX_free(hash);
  }
  if (result == 1) result = quarn_asn1_encode_signeddata_end(out, message, 0, nullptr);
  quarn_stream_free(out);
  require(result == 1 && size > content.size(), "write a message");
}

}  // namespace bench
