// A message on standard output, as `quarn decode` shows values, with three differences: what people
// seldom want in full is on one line (certificates, revocation lists, names, algorithms),
// attributes are shown by their names, and there is added where parts stand and which certificate a
// signer has.
#ifndef QUARN_CLI_MESSAGE_SHOW_H
#define QUARN_CLI_MESSAGE_SHOW_H

#include <map>
#include <string>
#include <vector>

#include "cli/message.h"
#include "cli/show.h"

namespace quarn::cli {

// The certificates of a message by what signers name them with.
class CertificateIndex {
 public:
  explicit CertificateIndex(const Message &message);
  // The number of the certificate of a SignerInfo; -1 when the message has none.
  std::int64_t of_signer(const Node &signer) const;

 private:
  void add(const Node &certificate, std::int64_t number);

  std::map<std::string, std::int64_t> numbers_;
};

// What the lines about certificates and revocation lists say.
struct Brief {
  const char *name;  // the member in JSON
  Node node;
};
// Of a Certificate, CertificateList or IssuerAndSerialNumber; empty for another type.
std::vector<Brief> briefs_of(const Node &node);
// Entries of a CertificateList.
std::int64_t revoked_in(const Node &list);

class MessageText : public TextShow {
 public:
  MessageText(const Message &message, std::size_t width)
      : TextShow(width), message_(message), certificates_(message) {}

  void show();
  bool enter(const Node &node, std::int64_t count) override;
  void leave() override;
  void leaf(const Node &node) override;

 protected:
  std::string remark(const Node &node) const override;

 private:
  // An attribute that is open: its values are shown under its name, without it and their list.
  struct Attribute {
    std::size_t depth;  // of its components
    std::string name;
  };
  std::string top_remark() const;
  std::string content_remark() const;
  std::string signer_remark(const Node &signer) const;
  bool brief(const Node &node) const;
  bool enter_attribute(const Node &node);
  bool in_attribute(std::size_t levels) const;
  Node renamed(const Node &value) const;

  const Message &message_;
  CertificateIndex certificates_;
  std::vector<Attribute> attributes_;  // outermost first
};

class MessageJson : public JsonShow {
 public:
  MessageJson(const Message &message, int indent)
      : JsonShow(indent), message_(message), certificates_(message) {}

  void show();
  bool enter(const Node &node, std::int64_t count) override;

 private:
  const Message &message_;
  CertificateIndex certificates_;
};

}  // namespace quarn::cli

#endif
