// Encodings as JSON and back. A rebuilt encoding renders as the same document; it is shorter than
// the original or the same, since what a document cannot carry is superfluous octets in headers.
#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const Exact input(data, size);
  const Json document(quarn_asn1_tojson(input.data(), input.size()));
  if (document == nullptr) return 0;
  // A constructed element of a tag without a name has no document form that can be rebuilt.
  const Blob rebuilt(quarn_asn1_encodejson(document.get()));
  if (rebuilt == nullptr) return 0;
  must(rebuilt->length <= input.size());
  if (equal(*rebuilt, input.data(), input.size())) return 0;
  const Json again(quarn_asn1_tojson(rebuilt->data, rebuilt->length));
  must(again != nullptr);
  std::size_t length = 0;
  std::size_t length_again = 0;
  const auto text = text_of(document.get(), &length);
  const auto text_again = text_of(again.get(), &length_again);
  must(length == length_again && std::memcmp(text.get(), text_again.get(), length) == 0);
  return 0;
}
