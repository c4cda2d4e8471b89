// ANY: one element of any type, kept as the octets that it was received or built with.
//
//     quarn_asn1_any | 30 80 | 02 01 05 00 00        one block: identifier and length, content
//
// Content of definite length is not looked into. That of indefinite length is walked, since nothing
// else tells where it ends: each element met on the way must have a form that its tag allows, and
// open levels are counted, so that nesting costs neither stack nor memory.
#ifndef QUARN_TYPES_ANY_H
#define QUARN_TYPES_ANY_H

#include "core/type.h"
#include "quarn_asn1/types.h"

struct quarn_asn1_any {
  std::uint64_t tag_number;
  std::int64_t content_length;  // as the header says
  union {
    std::uint64_t content_size;    // octets of content in the block; any number for a value made by
                                   // quarn_asn1_any_new()
    quarn_stream *content_stream;  // in_stream: the caller's stream that holds the content instead
  };
  std::uint32_t header_size;
  std::uint8_t tag_class;
  bool primitive;
  bool end_of_contents;  // stands for the marker; the header is 00 00
  bool in_stream;

  const std::uint8_t *header() const { return reinterpret_cast<const std::uint8_t *>(this + 1); }
  const std::uint8_t *content() const { return header() + header_size; }
  // Whether header() starts an encoding that is complete in the block.
  bool is_encoding() const {
    return !in_stream &&
           (content_length < 0 || static_cast<std::uint64_t>(content_length) == content_size);
  }
};

namespace quarn::asn1 {

// Whether an element of this tag may have the form it has. Of other classes than the universal one
// nothing is known, and every form is allowed.
bool form_allowed(const Identifier &identifier);

// What a walk over one element found.
struct Element {
  Identifier identifier;
  std::int64_t content_length;  // as the header says; 0 for an end-of-contents
  std::uint64_t header_size;    // octets of identifier and length
  std::uint64_t content_size;   // octets after them, with the end-of-contents of indefinite form
  bool end_of_contents;
};

// Reads identifier and length, or an end-of-contents, and checks the form. Leaves content_size
// alone.
Status read_element_header(Reader &in, Element &out);
// Moves over content, copying it unless copy is null. The end-of-contents that closes content of
// indefinite length is read but not copied.
Status pass_content(Reader &in, std::int64_t length, Writer *copy);
// Moves over one element as decode_any() does, with the same failures.
Status find_element(Reader &in, Element &out);

Status decode_any(Reader &in, quarn_asn1_any **out);
Status encode_any(Writer &out, const quarn_asn1_any *v);

// Content in a caller's stream, from its start: through a duplicate that later writes to the stream
// do not touch, or by rewinding the stream where it cannot be duplicated.
class StreamContent {
 public:
  explicit StreamContent(const quarn_asn1_any &v) : stream_(v.content_stream) {}
  StreamContent(const StreamContent &) = delete;
  StreamContent &operator=(const StreamContent &) = delete;
  ~StreamContent() { quarn_stream_free(duplicate_); }

  // destination, which may be null, is where the content will be written to.
  Status open(const quarn_stream *destination, quarn_err_ctx *ctx);
  quarn_stream *get() const { return duplicate_ != nullptr ? duplicate_ : stream_; }

 private:
  quarn_stream *stream_;
  quarn_stream *duplicate_ = nullptr;
};

}  // namespace quarn::asn1

#endif
