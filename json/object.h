// JSON values that are being built.
#ifndef QUARN_JSON_OBJECT_H
#define QUARN_JSON_OBJECT_H

#include <cstdint>
#include <limits>
#include <string_view>

#include "quarn_util.h"

namespace quarn::asn1::json {

// New values; null when they cannot be made.
inline quarn_json *new_text(std::string_view text) {
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) return nullptr;
  return quarn_json_newstring(text.data(), static_cast<std::uint32_t>(text.size()));
}
inline quarn_json *new_number(std::uint64_t number) {
  return quarn_json_newnumber(static_cast<double>(number));
}

// An object that grows member by member. The first member that cannot be made or added spoils it;
// what follows is dropped, so that only the result has to be looked at.
class Object {
 public:
  Object() : object_(quarn_json_newobject()) {}
  explicit Object(std::string_view type) : Object() { add("type", type); }
  Object(const Object &) = delete;
  Object &operator=(const Object &) = delete;
  ~Object() { quarn_json_free(object_); }

  // Takes the value over. Null is a value that could not be made.
  Object &add(std::string_view key, quarn_json *value) {
    const auto length = static_cast<std::uint32_t>(key.size());
    if (object_ != nullptr && value != nullptr &&
        quarn_json_addobjectitem(object_, key.data(), length, value) == 1) {
      return *this;
    }
    quarn_json_free(value);
    quarn_json_free(object_);
    object_ = nullptr;
    return *this;
  }
  Object &add(std::string_view key, std::string_view text) {
    return object_ == nullptr ? *this : add(key, new_text(text));
  }
  Object &add_true(std::string_view key) { return add(key, quarn_json_newboolean(1)); }

  // Hands the object over; null when it is spoilt.
  quarn_json *release() {
    quarn_json *object = object_;
    object_ = nullptr;
    return object;
  }

 private:
  quarn_json *object_;
};

}  // namespace quarn::asn1::json

#endif
