// Sums and products of lengths and counts. A result that does not fit is refused, never wrapped.
#ifndef QUARN_CORE_CHECKED_H
#define QUARN_CORE_CHECKED_H

#include <cstddef>
#include <cstdint>

namespace quarn::asn1 {

// Adds amount to sum. False, with sum unchanged, when the result does not fit.
template <typename T>
[[nodiscard]] constexpr bool add_to(T &sum, T amount) {
  T result{};
  if (__builtin_add_overflow(sum, amount, &result)) return false;
  sum = result;
  return true;
}

// Multiplies product by factor. False, with product unchanged, when the result does not fit.
template <typename T>
[[nodiscard]] constexpr bool multiply_by(T &product, T factor) {
  T result{};
  if (__builtin_mul_overflow(product, factor, &result)) return false;
  product = result;
  return true;
}

}  // namespace quarn::asn1

#endif
