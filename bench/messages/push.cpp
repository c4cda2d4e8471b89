// Push decoding at slices of several sizes. No peer has the like: what is judged is whether time
// stays in proportion to the input.
#include <algorithm>
#include <memory>

#include "bench/messages/messages.h"
#include "quarn_asn1/stream.h"

namespace bench {

namespace {

constexpr double kMostGrowth = 1.15;  // of the time of an octet when the input doubles

// Hands an input over in slices. Update takes a slice and says whether all of it was taken.
template <typename Update>
void push(const Octets &input, std::size_t slice, Update update) {
  for (std::size_t at = 0; at < input.size(); at += slice) {
    const std::size_t count = std::min(slice, input.size() - at);
    require(update(input.data() + at, static_cast<std::int64_t>(count)), "push a slice");
  }
}

void push_any(const Octets &input, std::size_t slice) {
  quarn_asn1_decode_any_ctx *context = quarn_asn1_decode_any_ctx_new();
  push(input, slice, [=](const std::uint8_t *octets, std::int64_t count) {
    std::int64_t left = 0;
    return quarn_asn1_decode_any_update(context, octets, count, &left) == 1 && left == 0;
  });
  require(quarn_asn1_decode_any_isfinish(context) == 1, "end an element");
  quarn_asn1_decode_any_ctx_free(context);
}

void push_string(const Octets &input, std::size_t slice) {
  static constexpr quarn_stream_callbacks kNowhere = {
      .read = nullptr,
      .write = [](void *, const void *, std::int64_t) { return 1; },
      .length = nullptr,
      .seek = nullptr,
      .close = nullptr};
  quarn_stream *out = quarn_stream_new_callback(&kNowhere, nullptr, nullptr);
  quarn_asn1_decode_octetstring_ctx *context = quarn_asn1_decode_octetstring_ctx_new();
  push(input, slice, [=](const std::uint8_t *octets, std::int64_t count) {
    std::int64_t left = 0;
    return quarn_asn1_decode_octetstring_update(context, out, octets, count, &left) == 1 &&
           left == 0;
  });
  require(quarn_asn1_decode_octetstring_isfinish(context) == 1, "end a string");
  quarn_asn1_decode_octetstring_ctx_free(context);
  quarn_stream_free(out);
}

// A string in segments of 4096 octets, as streamed messages have them.
Octets segments(std::size_t size) {
  Octets all = repeated(element(0x04, Octets(4096, 0x5A)), size);
  all.insert(all.begin(), {0x24, 0x80});
  all.insert(all.end(), {0x00, 0x00});
  return all;
}

// Small elements, as in a list of revoked certificates.
Octets sequences(std::size_t size) {
  const Octets one = {0x30, 0x0A, 0x02, 0x03, 0x01, 0x02, 0x03, 0x04, 0x03, 0x41, 0x42, 0x43};
  return element(0x30, repeated(one, size));
}

struct Way {
  const char *name;
  void (*run)(const Octets &input, std::size_t slice);
  Octets (*make)(std::size_t size);
};
constexpr Way kWays[] = {{"ANY", push_any, sequences}, {"string", push_string, segments}};

struct Slice {
  std::size_t octets;
  const char *suffix;
};
constexpr Slice kSlices[] = {
    {std::size_t{1} << 20, " by 1 MiB"}, {4096, " by 4 KiB"}, {64, " by 64"}, {1, " by 1"}};

struct Size {
  std::size_t octets;
  const char *suffix;
};
constexpr Size kWhole{std::size_t{10} << 20, ", 10 MiB"};
constexpr Size kHalf{kWhole.octets / 2, ", 5 MiB"};

// Both sizes in slices of one.
void add_slices(Question &question,
                const Way &way,
                const std::shared_ptr<const Octets> (&inputs)[2],
                const Slice &slice) {
  const std::string name = way.name + std::string(slice.suffix);
  for (const Size &size : {kWhole, kHalf}) {
    const auto &input = inputs[size.octets == kHalf.octets];
    question.cases.push_back(
        {.name = name + size.suffix,
         .work = uncounted([run = way.run, input, count = slice.octets] { run(*input, count); }),
         .reference = way.name + std::string(kSlices[0].suffix) + kWhole.suffix,
         .operations = input->size() >> 10});
  }
  question.comparisons.push_back(
      {.of = name + kWhole.suffix, .reference = name + kHalf.suffix, .at_most = kMostGrowth});
}

}  // namespace

Question push_decoding() {
  Question question{
      "8i. Push decoding: an ANY, an OCTET STRING in segments, by slices of a size", "KiB", 1, {}};
  for (const Way &way : kWays) {
    const std::shared_ptr<const Octets> inputs[2] = {
        std::make_shared<const Octets>(way.make(kWhole.octets)),
        std::make_shared<const Octets>(way.make(kHalf.octets))};
    for (const Slice &slice : kSlices) add_slices(question, way, inputs, slice);
  }
  return question;
}

}  // namespace bench
