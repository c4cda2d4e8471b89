// OpenSSL: the whole message becomes objects, the content one of them. Certificates are decoded
// with the message: a key is made of each public key, canonical forms of the names; extensions stay
// octets. A file is read to memory first. Written in pieces, content goes through a buffer of 4096
// octets, which are the segments of its OCTET STRING.
#include <openssl/cms.h>

#include "bench/messages/signer.h"

namespace bench {

namespace {

std::uint64_t size_and_free(CMS_ContentInfo *message) {
  require(message != nullptr, "decode a message with OpenSSL");
  ASN1_OCTET_STRING **content = CMS_get0_content(message);
  const int size = content == nullptr || *content == nullptr ? 0 : ASN1_STRING_length(*content);
  CMS_ContentInfo_free(message);
  return static_cast<std::uint64_t>(size);
}

CMS_ContentInfo *decode(const Octets &der) {
  const std::uint8_t *next = der.data();
  return d2i_CMS_ContentInfo(nullptr, &next, static_cast<long>(der.size()));
}

std::uint64_t message(const Octets &der) {
  return size_and_free(decode(der));
}

std::uint64_t file(const std::string &path) {
  BIO *in = BIO_new_file(path.c_str(), "rb");
  CMS_ContentInfo *value = d2i_CMS_bio(in, nullptr);
  BIO_free(in);
  return size_and_free(value);
}

std::size_t encode(void *message) {
  unsigned char *octets = nullptr;
  const int count = i2d_CMS_ContentInfo(static_cast<CMS_ContentInfo *>(message), &octets);
  OPENSSL_free(octets);
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

const bool kKnown =
    known_messages({.name = "OpenSSL",
                    .signed_message = message,
                    .signed_file = file,
                    .enveloped = message,
                    .load_enveloped = [](const Octets &der) -> void * { return decode(der); },
                    .encode_enveloped = encode});

}  // namespace

// Without a digest it is a message of the type data: signed data cannot be had without.
void write_openssl(const Octets &content, bool digest) {
  constexpr unsigned kFlags = CMS_BINARY | CMS_STREAM;
  BIO *in = BIO_new_mem_buf(content.data(), static_cast<int>(content.size()));
  BIO *out = BIO_new(BIO_s_null());
  CMS_ContentInfo *value =
      digest ? CMS_sign(signer(Key::kRsa).certificate, signer(Key::kRsa).key, nullptr, in, kFlags)
             : CMS_data_create(in, kFlags);
  const int result = i2d_CMS_bio_stream(out, value, in, static_cast<int>(kFlags));
  require(result == 1 && BIO_number_written(out) > content.size(), "write a message with OpenSSL");
  CMS_ContentInfo_free(value);
  BIO_free(out);
  BIO_free(in);
}

}  // namespace bench
