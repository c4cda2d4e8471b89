// Types whose layout is inferred, since nothing public defines them. Values made elsewhere may be
// laid out otherwise, and nothing of them may get lost: what is read and written are elements of
// any type.
//
//     elements  | SEQUENCE .. | OCTET STRING .. | OCTET STRING .. |     read, written, listed
//     view      a value of the layout, or null: elements that are      what the getters show
//               laid out otherwise
#include "core/engine.h"
#include "types/codecs.h"
#include "types/list.h"
#include "types/scratch.h"

namespace quarn::asn1 {

namespace {

// Where the records of a try go that may fail. One of a failure for want of memory is the first, or
// finds none itself.
class Trial {
 public:
  Trial() : ctx_(quarn_err_ctx_new()) {}
  Trial(const Trial &) = delete;
  Trial &operator=(const Trial &) = delete;
  ~Trial() { quarn_err_ctx_free(ctx_); }

  quarn_err_ctx *ctx() const { return ctx_; }
  bool short_of_memory() const {
    return quarn_err_ctx_count(ctx_) == 0 ||
           quarn_err_ctx_get(ctx_, 0)->code == QUARN_ERROR_NO_MEMORY;
  }

 private:
  quarn_err_ctx *ctx_;
};

Status write_elements(const Type &type, const Scratch &scratch, void *value, quarn_err_ctx *ctx) {
  if (scratch.stream() == nullptr) return Status::failure();
  Writer out(scratch.stream(), ctx);
  return encode_structured_content(type, out, value, 0);
}

// All of the elements, as a value of the layout.
Status read_view(const Type &layout, Reader &in, void **view) {
  if (layout.schema->is_choice()) return decode(layout, in, view);
  return decode_content(layout, in, view, false, static_cast<std::int64_t>(in.left()));
}

}  // namespace

Status lay_out(const Type &type, Reader &in, void *value) {
  const Scratch scratch(in.ctx());
  Status status = write_elements(type, scratch, value, in.ctx());
  if (!status) return status;
  const Type &layout = *type.schema->layout;
  Value view(layout);
  const Trial trial;
  Reader octets(scratch.data(), scratch.size(), trial.ctx());
  octets.nest_in(in);
  status = read_view(layout, octets, view.out());
  if (status.raw() == QUARN_ERROR_RECURSION) return status;
  if (!status && trial.short_of_memory()) {
    return type.schema->unit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  }
  if (status && octets.left() == 0) components(value)[1] = view.release();
  return Status::success();
}

Status decode_one_element(const Type &type, Reader &in, void **value) {
  if (value != nullptr) *value = nullptr;
  const Unit &unit = type.schema->unit;
  if (in.is_null() || value == nullptr) return unit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  const Type &any = type_of(QUARN_ASN1_ANY);
  Value element(any);
  Status status = decode(any, in, element.out());
  if (!status) return status;
  if (static_cast<const quarn_asn1_any *>(element.get())->end_of_contents) {
    return unit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM, in.offset());
  }
  Value made(type, build_list(*type.schema));
  auto *list = static_cast<quarn_asn1_list *>(component(made.get(), 0));
  if (list == nullptr || !append(*list, element.get())) {
    return unit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  }
  static_cast<void>(element.release());
  status = lay_out(type, in, made.get());
  if (status) *value = made.release();
  return status;
}

void *value_of_layout(const Type &type, void *view) {
  const Type &layout = *type.schema->layout;
  const Scratch scratch(nullptr);
  if (scratch.stream() == nullptr) return nullptr;
  {
    Writer out(scratch.stream(), nullptr);
    if (!encode(layout, out, view)) return nullptr;
  }
  Reader in(scratch.data(), scratch.size(), nullptr);
  void *value = nullptr;
  return decode(type, in, &value) ? value : nullptr;
}

}  // namespace quarn::asn1
