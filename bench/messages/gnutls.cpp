// GnuTLS: two trees of libtasn1, one of the ContentInfo and one of the SignedData, whose
// certificates stay octets. It has no EnvelopedData.
#include <gnutls/pkcs7.h>

#include "bench/messages/messages.h"

namespace bench {

namespace {

std::uint64_t message(const Octets &der) {
  const gnutls_datum_t data{const_cast<unsigned char *>(der.data()),
                            static_cast<unsigned>(der.size())};
  gnutls_pkcs7_t value = nullptr;
  gnutls_pkcs7_init(&value);
  const int result = gnutls_pkcs7_import(value, &data, GNUTLS_X509_FMT_DER);
  gnutls_pkcs7_deinit(value);
  require(result == GNUTLS_E_SUCCESS, "decode a message with GnuTLS");
  return 0;
}

const bool kKnown = known_messages({.name = "GnuTLS", .signed_message = message});

}  // namespace

}  // namespace bench
