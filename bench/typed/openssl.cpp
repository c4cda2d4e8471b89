// OpenSSL: opaque objects over ASN.1 templates. Decoding a certificate makes a key of the public
// key and canonical forms of the names; extensions stay octets until they are asked for.
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include "bench/typed/typed.h"

namespace bench {

namespace {

X509 *certificate_of(void *certificate) {
  return static_cast<X509 *>(certificate);
}

void *load(const Octets &der) {
  const std::uint8_t *next = der.data();
  return d2i_X509(nullptr, &next, static_cast<long>(der.size()));
}

void release(void *certificate) {
  X509_free(certificate_of(certificate));
}

bool certificate(const Octets &der) {
  void *value = load(der);
  release(value);
  return value != nullptr;
}

// False when the extension is of a type that is known and does not decode.
bool decode_extension(X509_EXTENSION *extension) {
  const X509V3_EXT_METHOD *method = X509V3_EXT_get(extension);
  if (method == nullptr) return true;
  void *value = X509V3_EXT_d2i(extension);
  if (value == nullptr) return false;
  if (method->it != nullptr) {
    ASN1_item_free(static_cast<ASN1_VALUE *>(value), ASN1_ITEM_ptr(method->it));
  } else {
    method->ext_free(value);
  }
  return true;
}

bool certificate_and_extensions(const Octets &der) {
  X509 *value = certificate_of(load(der));
  bool good = value != nullptr;
  const int count = good ? X509_get_ext_count(value) : 0;
  for (int i = 0; i < count; i++) good = decode_extension(X509_get_ext(value, i)) && good;
  X509_free(value);
  return good;
}

bool request(const Octets &der) {
  const std::uint8_t *next = der.data();
  X509_REQ *value = d2i_X509_REQ(nullptr, &next, static_cast<long>(der.size()));
  X509_REQ_free(value);
  return value != nullptr;
}

bool list(const Octets &der) {
  const std::uint8_t *next = der.data();
  X509_CRL *value = d2i_X509_CRL(nullptr, &next, static_cast<long>(der.size()));
  X509_CRL_free(value);
  return value != nullptr;
}

// The canonical form, which is made here, is a sorted one.
bool sorted_name(const Octets &der) {
  const std::uint8_t *next = der.data();
  X509_NAME *value = d2i_X509_NAME(nullptr, &next, static_cast<long>(der.size()));
  X509_NAME_free(value);
  return value != nullptr;
}

std::size_t encode(void *certificate) {
  unsigned char *octets = nullptr;
  const int count = i2d_X509(certificate_of(certificate), &octets);
  OPENSSL_free(octets);
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

// From now on the certificate does not use its kept encoding; its names still do.
void change(void *certificate) {
  i2d_re_X509_tbs(certificate_of(certificate), nullptr);
}

bool copy(void *certificate) {
  X509 *value = X509_dup(certificate_of(certificate));
  X509_free(value);
  return value != nullptr;
}

bool same_names(void *certificate) {
  return X509_NAME_cmp(X509_get_issuer_name(certificate_of(certificate)),
                       X509_get_subject_name(certificate_of(certificate))) == 0;
}

const bool kKnown = known_library({.name = "OpenSSL",
                                   .certificate = certificate,
                                   .certificate_and_extensions = certificate_and_extensions,
                                   .request = request,
                                   .list = list,
                                   .sorted_name = sorted_name,
                                   .load = load,
                                   .release = release,
                                   .encode = encode,
                                   .encode_anew = encode,
                                   .change = change,
                                   .copy = copy,
                                   .same_names = same_names});

}  // namespace

}  // namespace bench
