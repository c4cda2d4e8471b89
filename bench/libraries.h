// The libraries that a family of questions is asked of.
//
// Each has a source of its own, which makes it known before main() begins. One that is not
// installed is not built; one that cannot do what a question asks has a null function.
#ifndef QUARN_BENCH_LIBRARIES_H
#define QUARN_BENCH_LIBRARIES_H

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

// Library has a member `name`.
template <typename Library>
class Libraries {
 public:
  // `names` in the order of their lines, the reference first.
  explicit Libraries(std::vector<const char *> names) : names_(std::move(names)) {}

  // Returns true, so that a constant can be made of it.
  bool add(const Library &library) {
    built_.push_back(library);
    return true;
  }

  const std::vector<const char *> &names() const { return names_; }

  // Null for one that is not built.
  const Library *find(std::string_view name) const {
    const auto at = std::find_if(built_.begin(), built_.end(),
                                 [name](const Library &each) { return name == each.name; });
    return at == built_.end() ? nullptr : &*at;
  }

  // Those that were built, in their order.
  std::vector<Library> built() const {
    std::vector<Library> all;
    for (const char *name : names_) {
      if (const Library *library = find(name)) all.push_back(*library);
    }
    return all;
  }

  // Why a question has no line of a library.
  std::string absence(const std::string &name) const {
    return name + (find(name) != nullptr ? ": cannot" : ": left out, it is not installed");
  }

 private:
  std::vector<const char *> names_;
  std::vector<Library> built_;
};

// What is demanded of this library alone.
template <typename Library>
double of_ours(const Library &library, double at_most) {
  return std::string_view(library.name) == "quarn" ? at_most : 0;
}

}  // namespace bench

#endif
