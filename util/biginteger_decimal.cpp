// Decimal text of big integers, with Boost.Multiprecision doing the arithmetic.
//
// Both ways divide and conquer. With powers P[0] = 10^608 and P[i] = P[i-1]^2, a number of up to
// twice the digits of P[i] is
//
//     high digits x P[i] + low digits
//
// and each half is treated the same way down to pieces of 608 digits, for which digit-by-digit
// methods are the fastest. Multiplication is Karatsuba's, so n digits cost n^1.6 steps. The library
// divides by the schoolbook method only, which would cost n^2: the powers therefore carry their
// reciprocals, and a division is two multiplications.
//
// The recursion is as deep as there are powers: the logarithm of the number of digits.
#include <algorithm>
#include <boost/multiprecision/cpp_int.hpp>
#include <exception>

#include "util/biginteger.h"
#include "util/memory.h"

namespace {

using quarn::util::Block;
using quarn::util::kMostDecimalDigits;
using quarn::util::kMostDecimalOctets;

// Memory of the library's numbers: quarn_malloc(), and an exception when it is short.
template <typename T>
struct Allocator {
  using value_type = T;
  Allocator() = default;
  template <typename U>
  explicit Allocator(const Allocator<U> &) {}
  T *allocate(std::size_t count) {
    T *memory = quarn::util::allocate_array<T>(count);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
  }
  void deallocate(T *memory, std::size_t) { quarn_free(memory); }
  friend bool operator==(const Allocator &, const Allocator &) { return true; }
};

namespace mp = boost::multiprecision;
using Limb = mp::limb_type;
using Number =
    mp::number<mp::cpp_int_backend<0, 0, mp::signed_magnitude, mp::unchecked, Allocator<Limb>>,
               mp::et_off>;

constexpr std::size_t kLimbDigits = 19;  // digits that always fit a limb
constexpr Limb kLimbPower = 10'000'000'000'000'000'000U;
constexpr std::size_t kPieceDigits = kLimbDigits * 32;
constexpr std::size_t kMostPowers = 12;

// At least the digits of any magnitude of this many octets: log10(256) is below 2.40825.
constexpr std::size_t most_digits(std::size_t octets) {
  return octets * 240825 / 100000 + 1;
}

static_assert(sizeof(Limb) == 8);
static_assert((kPieceDigits << (kMostPowers - 1)) >= kMostDecimalDigits);
static_assert((kPieceDigits << (kMostPowers - 1)) >= most_digits(kMostDecimalOctets));

// 10^digits, and what dividing by it takes.
struct Power {
  Number value;
  Number reciprocal;  // 2^(2 * bits) / value, rounded down
  unsigned bits = 0;
};

// The powers that numbers of a given size need.
class Powers {
 public:
  // For numbers of up to `digits` digits; reciprocals only when they will be divided.
  Powers(std::size_t digits, bool reciprocals) {
    while ((kPieceDigits << count_) < digits) add(reciprocals);
  }

  // The greatest power with fewer digits than a number of `digits` digits, more than a piece has.
  std::size_t split(std::size_t digits) const {
    std::size_t i = count_ - 1;
    while (digits_of(i) >= digits) i--;
    return i;
  }
  static std::size_t digits_of(std::size_t i) { return kPieceDigits << i; }
  const Power &operator[](std::size_t i) const { return powers_[i]; }

 private:
  void add(bool reciprocals);

  Power powers_[kMostPowers];
  std::size_t count_ = 0;
};

void Powers::add(bool reciprocals) {
  Power &power = powers_[count_];
  if (count_ == 0) {
    power.value = mp::pow(Number(10), static_cast<unsigned>(kPieceDigits));
  } else {
    power.value = powers_[count_ - 1].value * powers_[count_ - 1].value;
  }
  power.bits = static_cast<unsigned>(mp::msb(power.value)) + 1;
  Number numerator;
  mp::bit_set(numerator, 2 * power.bits);
  if (reciprocals && count_ == 0) {
    power.reciprocal = numerator / power.value;
  } else if (reciprocals) {
    // The square of the last reciprocal has half the bits right; Newton's step gives all but a few
    // units of the rest, and counting gives those, so that errors do not add up over the powers.
    const Power &last = powers_[count_ - 1];
    Number r = last.reciprocal * last.reciprocal >> (4 * last.bits - 2 * power.bits);
    Number rest = numerator - power.value * r;
    const Number step = r * rest >> (2 * power.bits);
    r += step;
    rest -= power.value * step;
    for (; rest < 0; --r) rest += power.value;
    for (; rest >= power.value; ++r) rest -= power.value;
    power.reciprocal = std::move(r);
  }
  count_++;
}

// Quotient and remainder of a number below the square of the power.
void divide(Number x, const Power &power, Number &quotient, Number &remainder) {
  quotient = (x >> (power.bits - 1)) * power.reciprocal >> (power.bits + 1);
  remainder = std::move(x);
  remainder -= quotient * power.value;
  // Rounding down thrice leaves the quotient at most two too small.
  for (; remainder >= power.value; ++quotient) remainder -= power.value;
}

Number parse(const char *digits, std::size_t count, const Powers &powers) {
  Number result;
  if (count > kPieceDigits) {
    const std::size_t i = powers.split(count);
    const std::size_t high = count - Powers::digits_of(i);
    result = parse(digits, high, powers) * powers[i].value;
    result += parse(digits + high, count - high, powers);
    return result;
  }
  while (count > 0) {
    const std::size_t taken = std::min(count, kLimbDigits);
    Limb limb = 0;
    Limb scale = 1;
    for (std::size_t i = 0; i < taken; i++) {
      limb = limb * 10 + static_cast<Limb>(digits[i] - '0');
      scale *= 10;
    }
    result *= scale;
    result += limb;
    digits += taken;
    count -= taken;
  }
  return result;
}

// Writes the last count digits of x, which has no more, with zeros in front.
void print(Number x, char *digits, std::size_t count, const Powers &powers) {
  if (count > kPieceDigits) {
    const std::size_t i = powers.split(count);
    const std::size_t high = count - Powers::digits_of(i);
    Number quotient;
    Number remainder;
    divide(std::move(x), powers[i], quotient, remainder);
    print(std::move(quotient), digits, high, powers);
    print(std::move(remainder), digits + high, count - high, powers);
    return;
  }
  while (count > 0) {
    const std::size_t taken = std::min(count, kLimbDigits);
    auto limb = static_cast<Limb>(x % kLimbPower);
    x /= kLimbPower;
    for (std::size_t i = 0; i < taken; i++) {
      digits[--count] = static_cast<char>('0' + limb % 10);
      limb /= 10;
    }
  }
}

// The library's own octet-wise import and export handle single bits; a limb is eight octets.
Number import_magnitude(const uint8_t *magnitude, std::size_t length) {
  const std::size_t limbs = length / sizeof(Limb) + 1;
  Number x;
  x.backend().resize(static_cast<unsigned>(limbs), static_cast<unsigned>(limbs));
  Limb *out = x.backend().limbs();
  std::fill(out, out + limbs, 0);
  for (std::size_t i = 0; i < length; i++) {
    out[i / sizeof(Limb)] |= static_cast<Limb>(magnitude[length - 1 - i]) << (i % sizeof(Limb) * 8);
  }
  x.backend().normalize();
  return x;
}

quarn_biginteger *export_magnitude(int sign, const Number &x) {
  const Limb *limbs = x.backend().limbs();
  const std::size_t length = x.backend().size() * sizeof(Limb);
  const Block<uint8_t> octets(quarn::util::allocate_array<uint8_t>(length));
  if (octets == nullptr) return nullptr;
  for (std::size_t i = 0; i < length; i++) {
    octets.get()[length - 1 - i] =
        static_cast<uint8_t>(limbs[i / sizeof(Limb)] >> (i % sizeof(Limb) * 8));
  }
  return quarn::util::make_biginteger(sign, octets.get(), length);
}

// The text, with room for it made from an upper bound of its digits.
char *print_all(const quarn_biginteger &value, std::size_t bound, std::size_t *length) {
  Block<char> text(quarn::util::allocate_array<char>(bound + 2));
  if (text == nullptr) return nullptr;
  char *begin = text.get();
  if (value.sign < 0) *begin++ = '-';
  print(import_magnitude(value.magnitude(), value.length), begin, bound, Powers(bound, true));
  const char *first = std::find_if(begin, begin + bound - 1, [](char c) { return c != '0'; });
  char *end = std::copy(first, static_cast<const char *>(begin + bound), begin);
  *end = '\0';
  *length = static_cast<std::size_t>(end - text.get());
  return text.release();
}

}  // namespace

namespace quarn::util {

quarn_biginteger *biginteger_from_digits(int sign, const char *digits, std::size_t count) {
  try {
    return export_magnitude(sign, parse(digits, count, Powers(count, false)));
  } catch (const std::exception &) {
    return nullptr;
  }
}

char *biginteger_to_digits(const quarn_biginteger &value, std::size_t *length) {
  if (value.length > kMostDecimalOctets) return nullptr;
  try {
    return print_all(value, most_digits(value.length), length);
  } catch (const std::exception &) {
    return nullptr;
  }
}

}  // namespace quarn::util
