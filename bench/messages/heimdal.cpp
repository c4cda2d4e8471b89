// Heimdal: C structures; the content of the ContentInfo stays octets, which are decoded in turn.
// So do certificates, which are decoded here because the others do it.
#include <memory>

#include "bench/heimdal.h"
#include "bench/messages/messages.h"

namespace bench {

namespace {

template <typename T>
std::unique_ptr<T> decode_in_content_info(const Octets &der, DecodeHeimdal<T> *decode) {
  ContentInfo outer;
  std::size_t size = 0;
  require(decode_ContentInfo(der.data(), der.size(), &outer, &size) == 0 && outer.content,
          "decode a message with Heimdal");
  auto value = std::make_unique<T>();
  const int error = decode(static_cast<const unsigned char *>(outer.content->data),
                           outer.content->length, value.get(), &size);
  free_ContentInfo(&outer);
  require(error == 0, "decode the content of a message with Heimdal");
  return value;
}

std::uint64_t signed_message(const Octets &der) {
  const auto value = decode_in_content_info(der, decode_SignedData);
  const std::uint64_t size = value->encapContentInfo.eContent->length;
  for (unsigned i = 0; i < value->certificates->len; i++) {
    const heim_any &octets = value->certificates->val[i];
    require(decode_certificate(octets.data, octets.length), "decode a certificate with Heimdal");
  }
  free_SignedData(value.get());
  return size;
}

std::uint64_t enveloped(const Octets &der) {
  const auto value = decode_in_content_info(der, decode_EnvelopedData);
  free_EnvelopedData(value.get());
  return 0;
}

std::size_t encode(void *message) {
  const auto *value = static_cast<const EnvelopedData *>(message);
  std::size_t size = length_EnvelopedData(value);
  Octets octets(size);
  const int error = encode_EnvelopedData(octets.data() + size - 1, size, value, &size);
  return error == 0 ? size : 0;
}

const bool kKnown =
    known_messages({.name = "Heimdal",
                    .signed_message = signed_message,
                    .enveloped = enveloped,
                    .load_enveloped = [](const Octets &der) -> void * {
                      return decode_in_content_info(der, decode_EnvelopedData).release();
                    },
                    .encode_enveloped = encode});

}  // namespace

}  // namespace bench
