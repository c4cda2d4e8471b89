// Botan: C++ objects. Extensions of known types are decoded with the certificate; copies share.
#include <botan/pkcs10.h>
#include <botan/pkix_types.h>
#include <botan/x509_crl.h>
#include <botan/x509cert.h>

#include <memory>

#include "bench/typed/typed.h"

namespace bench {

namespace {

// It throws what it refuses.
template <typename T>
bool decode_and_free(const Octets &der) {
  try {
    T value(der);
    return true;
  } catch (const std::exception &) {
    return false;
  }
}

void *load(const Octets &der) {
  try {
    return std::make_unique<Botan::X509_Certificate>(der).release();
  } catch (const std::exception &) {
    return nullptr;
  }
}

const Botan::X509_Certificate &certificate_of(void *certificate) {
  return *static_cast<Botan::X509_Certificate *>(certificate);
}

void release(void *certificate) {
  delete static_cast<Botan::X509_Certificate *>(certificate);
}

std::size_t encode(void *certificate) {
  return certificate_of(certificate).BER_encode().size();
}

bool same_names(void *certificate) {
  return certificate_of(certificate).issuer_dn() == certificate_of(certificate).subject_dn();
}

const bool kKnown =
    known_library({.name = "Botan",
                   .certificate_and_extensions = decode_and_free<Botan::X509_Certificate>,
                   .request = decode_and_free<Botan::PKCS10_Request>,
                   .list = decode_and_free<Botan::X509_CRL>,
                   .load = load,
                   .release = release,
                   .encode = encode,
                   .same_names = same_names});

}  // namespace

}  // namespace bench
