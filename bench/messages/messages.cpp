// 8. Messages: signed data from memory and from files, written in pieces; enveloped data; push
// decoding.
#include "bench/messages/messages.h"

#include "bench/libraries.h"

namespace bench {

namespace {

constexpr std::size_t kSmall = std::size_t{1} << 10;
constexpr std::size_t kMiddle = std::size_t{1} << 20;
constexpr std::size_t kLarge = std::size_t{100} << 20;

struct Size {
  std::size_t octets;
  const char *suffix;
};
constexpr Size kSizes[] = {{kSmall, ", 1 KiB"}, {kMiddle, ", 1 MiB"}, {kLarge, ", 100 MiB"}};

Libraries<MessageLibrary> &registered() {
  static Libraries<MessageLibrary> all({"OpenSSL", "quarn", "libksba", "Heimdal", "GnuTLS"});
  return all;
}

// Those that can do something, in their order; who is missing is noted.
template <typename Function>
std::vector<MessageLibrary> who_can(Function MessageLibrary::*function, Question &question) {
  std::vector<MessageLibrary> able;
  for (const char *name : registered().names()) {
    const MessageLibrary *library = registered().find(name);
    if (library == nullptr || library->*function == nullptr) {
      question.notes.push_back(registered().absence(name));
    } else {
      able.push_back(*library);
    }
  }
  return able;
}

// Input is made when the work is first done, which is not while the clock runs.
Case decoding(const std::string &name,
              DecodeMessage decode,
              double at_most,
              std::size_t size,
              Lengths lengths = Lengths::kDefinite,
              Key key = Key::kRsa) {
  return {.name = name,
          .work = [=] { return decode(signed_message(size, lengths, key)); },
          .at_most = at_most};
}

Question from_memory(const std::string &title,
                     double at_most,
                     std::size_t size,
                     Lengths lengths = Lengths::kDefinite,
                     Key key = Key::kRsa) {
  Question question{title, "message", 1, {}};
  for (const MessageLibrary &library : who_can(&MessageLibrary::signed_message, question)) {
    question.cases.push_back(decoding(library.name, library.signed_message,
                                      of_ours(library, at_most), size, lengths, key));
  }
  return question;
}

Question small_message(const std::string &title, Key key) {
  Question question = from_memory(title, 0.07, kSmall, Lengths::kDefinite, key);
  question.cases.push_back(decoding("quarn, ContentInfo, then SignedData", decode_rows, 0.07,
                                    kSmall, Lengths::kDefinite, key));
  return question;
}

Question large_message() {
  Question question = from_memory("8b. Signed message of 100 MiB, content kept", 1.1, kLarge);
  question.comparisons = {
      {.of = "quarn", .at_most = 1.05 * static_cast<double>(kLarge), .measure = Measure::kPeak}};
  return question;
}

// What is left in the source or passed on takes no more memory than this.
constexpr double kHeapOfReading = 256 << 10;
constexpr double kHeapOfWriting = 64 << 10;

void demand_heap(Question &question, double at_most) {
  for (const Case &one : question.cases) {
    if (!one.name.starts_with("quarn")) continue;
    question.comparisons.push_back({.of = one.name, .at_most = at_most, .measure = Measure::kPeak});
  }
}

Question large_message_apart() {
  Question question{
      "8c. Signed message of 100 MiB, content not kept",
      "message",
      1,
      {decoding("OpenSSL, content kept", registered().find("OpenSSL")->signed_message, 0, kLarge),
       decoding("quarn, content left in the source", decode_apart, 0.15, kLarge),
       decoding("quarn, content to a stream", decode_content_aside, 0.15, kLarge)}};
  demand_heap(question, kHeapOfReading);
  return question;
}

Question large_message_indefinite() {
  constexpr Lengths kLengths = Lengths::kIndefinite;
  Question question =
      from_memory("8d. Signed message of 100 MiB in indefinite lengths", 0.5, kLarge, kLengths);
  question.cases.push_back(
      decoding("quarn, content joined in memory", decode_content_kept, 0.5, kLarge, kLengths));
  question.cases.push_back(
      decoding("quarn, content left in the source", decode_apart, 0.5, kLarge, kLengths));
  question.cases.push_back(
      decoding("quarn, content to a stream", decode_content_aside, 0.5, kLarge, kLengths));
  question.comparisons = {
      {.of = "quarn", .at_most = 1.05 * static_cast<double>(kLarge), .measure = Measure::kPeak}};
  return question;
}

Case writing(const std::string &name,
             std::size_t piece,
             bool digest,
             const std::string &reference,
             double at_most) {
  return {.name = name,
          .work = uncounted([=] { write_signed(content_of(kLarge), piece, digest); }),
          .at_most = at_most,
          .reference = reference};
}

Case writing_openssl(const std::string &name, bool digest) {
  return {.name = name,
          .work = uncounted([=] { write_openssl(content_of(kLarge), digest); }),
          .reference = name};
}

Question written() {
  constexpr std::size_t kPiece = 4096;  // that of OpenSSL
  const std::string plain = "OpenSSL, data", digested = "OpenSSL, SHA-256 and signature";
  Question question{
      "8e. Message of 100 MiB written in pieces",
      "message",
      1,
      {writing_openssl(plain, false), writing("quarn, pieces of 4 KiB", kPiece, false, plain, 2),
       writing("quarn, pieces of 64 KiB", 16 * kPiece, false, plain, 2),
       writing_openssl(digested, true),
       writing("quarn, pieces of 4 KiB, SHA-256", kPiece, true, digested, 2)}};
  demand_heap(question, kHeapOfWriting);
  return question;
}

Case decoding_file(const std::string &name,
                   DecodeFile decode,
                   const Size &size,
                   const std::string &reference) {
  return {.name = name + size.suffix,
          .work = uncounted([=, octets = size.octets] {
            const std::uint64_t found = decode(signed_file(octets));
            require(found == 0 || found == octets, "find all content");
          }),
          .reference = reference + size.suffix};
}

Question from_files(const Size &size) {
  Question question{std::string("8f. Signed message from a file") + size.suffix, "message", 1, {}};
  const std::string reference = "OpenSSL";
  for (const MessageLibrary &library : who_can(&MessageLibrary::signed_file, question)) {
    question.cases.push_back(decoding_file(library.name, library.signed_file, size, reference));
  }
  question.cases.push_back(decoding_file("quarn, seeking", decode_file_apart, size, reference));
  return question;
}

// Content that is longer than what is read at a time takes a buffer once.
constexpr double kMostGrowthOfHeap = 1.05;

Question from_files() {
  Question all{"8f. Signed message from a file", "message", 1, {}};
  for (const Size &size : kSizes) {
    Question one = from_files(size);
    for (Case &each : one.cases) all.cases.push_back(std::move(each));
    all.notes = one.notes;
  }
  for (const std::string ours : {"quarn", "quarn, seeking"}) {
    for (const Size &size : {kSizes[1], kSizes[2]}) {
      all.comparisons.push_back({.of = ours + size.suffix,
                                 .reference = ours + kSizes[0].suffix,
                                 .at_most = kMostGrowthOfHeap,
                                 .measure = Measure::kPeak});
    }
  }
  return all;
}

Case decoding_enveloped(const std::string &name, DecodeMessage decode, const Size &size) {
  return {.name = name + size.suffix,
          .work = uncounted([=, octets = size.octets] { decode(enveloped_message(octets)); }),
          .reference = std::string("OpenSSL") + size.suffix};
}

Question enveloped_decoded() {
  Question question{"8g. EnvelopedData decoded, freed", "message", 1, {}};
  const auto able = who_can(&MessageLibrary::enveloped, question);
  for (const Size &size : {kSizes[0], kSizes[1]}) {
    for (const MessageLibrary &library : able) {
      question.cases.push_back(decoding_enveloped(library.name, library.enveloped, size));
    }
    question.cases.push_back(
        decoding_enveloped("quarn, where it lies", decode_enveloped_in_place, size));
    question.cases.push_back(
        decoding_enveloped("quarn, content left", decode_enveloped_apart, size));
  }
  return question;
}

Question enveloped_encoded() {
  Question question{"8h. EnvelopedData encoded", "message", 1, {}};
  const auto able = who_can(&MessageLibrary::encode_enveloped, question);
  for (const Size &size : {kSizes[0], kSizes[1]}) {
    for (const MessageLibrary &library : able) {
      void *message = library.load_enveloped(enveloped_message(size.octets));
      question.cases.push_back(
          {.name = std::string(library.name) + size.suffix,
           .work = uncounted([message, encode = library.encode_enveloped, size] {
             require(encode(message) > size.octets, "encode a message");
           }),
           .reference = std::string("OpenSSL") + size.suffix});
    }
  }
  return question;
}

}  // namespace

bool known_messages(const MessageLibrary &library) {
  return registered().add(library);
}

std::vector<Question> messages() {
  return {small_message("8a. Signed message of 1 KiB, signer with an RSA key", Key::kRsa),
          small_message("8a. Signed message of 1 KiB, signer with an EC key", Key::kEc),
          large_message(),
          large_message_apart(),
          large_message_indefinite(),
          written(),
          from_files(),
          enveloped_decoded(),
          enveloped_encoded(),
          push_decoding()};
}

}  // namespace bench
