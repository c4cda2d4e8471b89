// A stream of the content of an element, read where the element lies.
//
//     24 80  04 02 41 42  24 03 04 01 43  00 00       an OCTET STRING: runs 41 42, 43
//     30 80  02 01 05  30 80 00 00  00 00             another element: runs 02 01 05, 30 80, 00 00
//
// A run is octets of the source that are content and follow one another. Between runs the headers
// tell where the next one is.
#include <algorithm>

#include "core/adapter.h"
#include "core/checked.h"
#include "quarn_asn1/message.h"
#include "types/any.h"
#include "types/string.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Stream"};

constexpr std::uint64_t kIndefiniteEnd = UINT64_MAX;

class ContentStream {
 public:
  // The ends of open levels follow in the block.
  static ContentStream *make(quarn_stream *source, std::uint64_t offset) {
    const int deepest = quarn_get_recursive_level();
    auto size = static_cast<std::size_t>(deepest);
    if (!multiply_by(size, sizeof(std::uint64_t))) return nullptr;
    auto *made = util::allocate<ContentStream>(size);
    if (made == nullptr) return nullptr;
    made->source_ = source;
    made->position_ = offset;
    made->deepest_ = deepest;
    return made;
  }

  // Reads the header of the element.
  Status begin(quarn_err_ctx *ctx) {
    Status status = go_to_position(ctx);
    if (!status) return status;
    Element element{};
    status = read([&](Reader &in) { return read_element_header(in, element); }, ctx);
    if (!status) return status;
    if (element.end_of_contents) return kUnit.fail(ctx, QUARN_ASN1_ERROR_ITEM);
    const Identifier &identifier = element.identifier;
    const std::int64_t length = element.content_length;
    in_segments_ = identifier.is(kUniversal, 4) || identifier.is(kContext, 0);
    if (in_segments_ && !identifier.primitive) return open(length);
    if (length != kIndefinite) {
      run_ = static_cast<std::uint64_t>(length);
      return status;
    }
    return in_segments_ ? kUnit.fail(ctx, QUARN_ASN1_ERROR_INDEFINITE) : open(length);
  }

  static std::int64_t read_some(void *user, void *buffer, std::int64_t count) {
    auto &self = *static_cast<ContentStream *>(user);
    std::uint64_t got = 0;
    if (!self.failed_ && !self.some(buffer, count, got)) self.failed_ = true;
    return self.failed_ ? -1 : static_cast<std::int64_t>(got);
  }

  static void free(void *user) { quarn_free(user); }

 private:
  std::uint64_t *ends() { return reinterpret_cast<std::uint64_t *>(this + 1); }

  Status some(void *buffer, std::int64_t count, std::uint64_t &got) {
    Status status = go_to_position(nullptr);
    while (status && run_ == 0 && depth_ > 0) status = in_segments_ ? segment() : element();
    if (!status || run_ == 0 || count == 0) return status;
    const auto most =
        static_cast<std::int64_t>(std::min<std::uint64_t>(run_, static_cast<std::uint64_t>(count)));
    status = Status::from(quarn_stream_read(source_, buffer, most, &got, nullptr));
    if (status && got == 0) return Status::failure();
    run_ -= got;
    position_ += got;
    return status;
  }

  // The source may have been moved since.
  Status go_to_position(quarn_err_ctx *ctx) {
    if (quarn_stream_position(source_) == position_) return Status::success();
    return Status::from(quarn_stream_ctrl(source_, QUARN_STREAM_SEEK, &position_, ctx));
  }

  template <typename Read>
  Status read(Read read_header, quarn_err_ctx *ctx) {
    Reader in(source_, ctx);
    const Status status = read_header(in);
    position_ += in.count();
    return status;
  }

  Status open(std::int64_t length) {
    if (depth_ == deepest_) return Status::too_deep();
    std::uint64_t end = position_;
    if (length == kIndefinite) {
      end = kIndefiniteEnd;
    } else if (!add_to(end, static_cast<std::uint64_t>(length))) {
      return Status::failure();
    }
    ends()[depth_++] = end;
    return Status::success();
  }

  // Up to the next segment, or the end of a level.
  Status segment() {
    const std::uint64_t end = ends()[depth_ - 1];
    if (position_ >= end) {
      depth_--;
      return position_ == end ? Status::success() : Status::failure();
    }
    Segment segment{};
    const Status status =
        read([&](Reader &in) { return read_segment(kOctetRules, in, segment); }, nullptr);
    if (!status) return status;
    if (segment.is_end) {
      depth_--;
      return end == kIndefiniteEnd ? status : Status::failure();
    }
    if (!segment.primitive) return open(segment.length);
    if (segment.length == kIndefinite) return Status::failure();
    run_ = static_cast<std::uint64_t>(segment.length);
    return status;
  }

  // An element within one of indefinite length, whose header is content too.
  Status element() {
    const std::uint64_t start = position_;
    Element element{};
    const Status status =
        read([&](Reader &in) { return read_element_header(in, element); }, nullptr);
    if (!status) return status;
    if (element.end_of_contents) {
      if (--depth_ == 0) return status;
    } else {
      if (depth_ == deepest_) return Status::too_deep();
      if (element.content_length == kIndefinite) ends()[depth_++] = kIndefiniteEnd;
    }
    run_ = element.header_size;
    if (element.content_length > 0) run_ += static_cast<std::uint64_t>(element.content_length);
    position_ = start;
    return go_to_position(nullptr);
  }

  quarn_stream *source_;
  std::uint64_t position_;  // in source_, of the next octet
  std::uint64_t run_;       // octets of content from there on
  int deepest_;
  int depth_;         // of open levels
  bool in_segments_;  // of an OCTET STRING; else levels are elements of indefinite length
  bool failed_;
};

}  // namespace

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_stream *quarn_asn1_contentstream_new(quarn_stream *source,
                                           uint64_t offset,
                                           quarn_err_ctx *ctx) {
  if (source == nullptr) {
    static_cast<void>(kUnit.fail(ctx, QUARN_ERROR_ARGUMENT));
    return nullptr;
  }
  ContentStream *content = ContentStream::make(source, offset);
  if (content == nullptr) {
    static_cast<void>(kUnit.fail(ctx, QUARN_ERROR_NO_MEMORY));
    return nullptr;
  }
  constexpr quarn_stream_callbacks kCallbacks{ContentStream::read_some, nullptr, nullptr, nullptr,
                                              ContentStream::free};
  quarn_stream *made = nullptr;
  if (content->begin(ctx)) made = quarn_stream_new_callback(&kCallbacks, content, ctx);
  if (made == nullptr) quarn_free(content);
  return made;
}
