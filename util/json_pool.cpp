// Pools of JSON values.
#include <algorithm>

#include "util/json.h"

namespace quarn::util {
namespace {

constexpr std::size_t kAlignment = alignof(quarn_json);
constexpr std::size_t kHead = sizeof(void *);
constexpr std::size_t kLeastBlock = 256;
constexpr std::size_t kMostBlock = 16384;
static_assert(kHead % kAlignment == 0);

}  // namespace

JsonPool::JsonPool(std::size_t size) : next_size_(std::clamp(size, kLeastBlock, kMostBlock)) {}

bool JsonPool::add_block(std::size_t least) {
  const std::size_t size = std::max(least, next_size_);
  if (size > SIZE_MAX - kHead) return false;
  auto **block = reinterpret_cast<void **>(allocate_array<char>(size + kHead));
  if (block == nullptr) return false;
  *block = nullptr;
  if (last_ != nullptr) *last_ = block;
  last_ = block;
  at_ = reinterpret_cast<char *>(block + 1);
  left_ = size;
  next_size_ = std::min(next_size_ * 2, kMostBlock);
  return true;
}

quarn_json *JsonPool::make(quarn_json_kind kind, std::size_t room) {
  if (room > SIZE_MAX / 2) return nullptr;
  const std::size_t size = (sizeof(quarn_json) + room + kAlignment - 1) / kAlignment * kAlignment;
  const bool first = last_ == nullptr;
  if (size > left_ && !add_block(size)) return nullptr;
  auto *j = new (at_) quarn_json;
  at_ += size;
  left_ -= size;
  j->kind = static_cast<uint8_t>(kind) & 0x3F;
  j->pooled = 1;
  j->has_pool = first;
  return j;
}

quarn_json *JsonPool::make_text(std::string_view octets) {
  return json_set_text(make(QUARN_JSON_STRING, octets.size() + 1), octets);
}

void json_release_pool(quarn_json *root) {
  void *block = reinterpret_cast<void **>(root) - 1;
  while (block != nullptr) {
    void *next = *static_cast<void **>(block);
    quarn_free(block);
    block = next;
  }
}

}  // namespace quarn::util
