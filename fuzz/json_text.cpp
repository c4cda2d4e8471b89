// JSON text: what parses prints as text that parses to the same; what describes an encoding gives
// one.
#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const Exact input(data, size);
  const auto *text = reinterpret_cast<const char *>(input.data());
  const Context ctx(quarn_err_ctx_new());
  const Json value(quarn_json_parse(text, size, ctx.get()));
  must((value == nullptr) == (quarn_err_ctx_count(ctx.get()) > 0));
  if (value == nullptr) {
    must(quarn_err_ctx_offset(ctx.get(), 0) <= input.size());
    return 0;
  }
  std::size_t length = 0;
  const auto printed = text_of(value.get(), &length);
  const Json again(quarn_json_parse(printed.get(), length, nullptr));
  must(again != nullptr);
  std::size_t length_again = 0;
  const auto printed_again = text_of(again.get(), &length_again);
  must(length == length_again && std::memcmp(printed.get(), printed_again.get(), length) == 0);
  char *indented = nullptr;
  must(quarn_json_print(value.get(), 2, &indented, nullptr) == 1);
  quarn_free(indented);
  const Blob encoding(quarn_asn1_encodejson(value.get()));
  if (encoding != nullptr && encoding->length > 0) {
    const Json document(quarn_asn1_tojson(encoding->data, encoding->length));
  }
  return 0;
}
