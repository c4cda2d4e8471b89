// Typed values on standard output: as indented lines for people, or as JSON.
#ifndef QUARN_CLI_SHOW_H
#define QUARN_CLI_SHOW_H

#include <optional>
#include <string>
#include <vector>

#include "cli/typed.h"
#include "cli/walk.h"

namespace quarn::cli {

// One line for each component: its name, its type, its value. Names and sets of one element are
// folded into fewer lines.
class TextShow : public TypedVisitor {
 public:
  explicit TextShow(std::size_t width) : width_(width) {}

  bool enter(const Node &node, std::int64_t count) override;
  void leave() override { indents_.pop_back(); }
  void leaf(const Node &node) override;
  // An encoding of any type, as its elements.
  void tree(Octets octets) const;

 protected:
  // What is to be said of a record or list behind its type.
  virtual std::string remark(const Node & /*node*/) const { return ""; }
  // The components come no further to the right than the value itself.
  void enter_silently() { indents_.push_back(indent()); }
  // A line of its type, the text and the remark.
  void summary(const Node &node, const std::string &text) const;
  std::size_t depth() const { return indents_.size(); }
  std::size_t width() const { return width_; }

 private:
  std::size_t indent() const { return indents_.empty() ? 0 : indents_.back(); }
  std::string head(const Node &node) const;
  void line(const Node &node, const std::string &text) const;
  bool fold(const Node &node) const;
  void pair(const Node &node, const Node &attribute) const;
  void unopened(const Node &node) const;
  void elements(Octets octets,
                Walk::Top top,
                const std::optional<std::string> &head,
                const std::string &after) const;

  std::size_t width_;
  std::vector<std::size_t> indents_;  // of the components of each level that is open
};

// The value as JSON; docs/quarn.md describes it.
class JsonShow : public TypedVisitor {
 public:
  // indent: blanks a level; 0 for one line.
  explicit JsonShow(int indent) : indent_(static_cast<std::size_t>(indent)) {}

  bool enter(const Node &node, std::int64_t count) override;
  void leave() override;
  void leaf(const Node &node) override;

 protected:
  // A member of the object that is open, or an object that becomes open.
  void member(const char *name, const std::string &json);
  void open(const char *name);
  // A value of which the JSON is this.
  void whole(const Node &node, const std::string &json);
  std::size_t depth() const { return levels_.size(); }

 private:
  struct Level {
    bool object;
    bool empty;
    std::string end;  // what closes the objects around it
  };
  // Writes all that comes before the value itself, and gives what comes after it.
  std::string begin(const Node &node);
  void next_member(const std::string &name);
  void new_line() const;

  std::size_t indent_;
  std::vector<Level> levels_;
};

}  // namespace quarn::cli

#endif
