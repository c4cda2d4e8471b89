// The table itself, and look-ups in it. The texts are what users read: help, man page, completions.
#include "cli/options.h"

#include <algorithm>
#include <charconv>

#include "cli/commands.h"
#include "cli/failure.h"
#include "cli/text.h"

namespace quarn::cli {

namespace {

constexpr Option kOptions[] = {
    {Opt::help, "-h,--help", nullptr, nullptr, "Show help and exit."},
    {Opt::version, "-V,--version", nullptr, nullptr, "Show the version and exit."},
    {Opt::color, "--color", "WHEN", "auto,always,never",
     "Colour the output. auto, the default, does so on a terminal unless NO_COLOR is set or TERM "
     "is dumb; CLICOLOR_FORCE asks for colour in a pipe too."},
    {Opt::in_form, "--in-form", "FORM", "auto,der,pem,base64,hex",
     "Form of the input. auto, the default, looks at the octets. der stands for BER too."},
    {Opt::recursive, "-r,--recursive", nullptr, nullptr,
     "Take every file below the directories that are named."},
    {Opt::compact, "-c,--compact", nullptr, nullptr, "Write each document on one line."},
    {Opt::lines, "-l,--lines", nullptr, nullptr,
     "Write one JSON object a line for each object of the input, with its source, index, offset "
     "and length, and either the document or the error."},
    {Opt::output, "-o,--output", "FILE", nullptr,
     "Write to FILE, which is replaced only when everything went well."},
    {Opt::pem, "--pem", "LABEL", nullptr,
     "Write PEM blocks with this label, for example CERTIFICATE."},
    {Opt::hex, "--hex", nullptr, nullptr, "Write hexadecimal text."},
    {Opt::to, "--to", "FORM", "der,pem,hex,base64",
     "Form of the output. der is the octets as they are."},
    {Opt::label, "--label", "LABEL", nullptr,
     "Label of the PEM blocks, whatever they had before or look like."},
    {Opt::no_dig, "--no-dig", nullptr, nullptr,
     "Do not look for encodings inside OCTET STRING and BIT STRING."},
    {Opt::depth, "--depth", "N", nullptr, "Show elements down to level N; the outermost is 0."},
    {Opt::width, "--width", "N", nullptr,
     "Cut values after N characters; 0 shows them whole. The default is 72."},
    {Opt::json, "--json", nullptr, nullptr, "Write JSON."},
    {Opt::type, "-t,--type", "TYPE", nullptr,
     "The type of the input: a name of ASN.1, such as Certificate, or a name or id that `quarn "
     "types` lists. Without it the type is found by the label of a PEM block, or by trying."},
    {Opt::content, "--content", "FILE", nullptr,
     "Write the content of the message to FILE, which is replaced only when everything went well. "
     "With - the content, and nothing else, goes to the standard output."},
};

constexpr const char *kInputText =
    "FILE may hold DER, BER, PEM, base64 or hexadecimal text; - or no FILE is the standard input. "
    "Every PEM block, and every encoding of a file that holds several one after another, is an "
    "object of its own. Octets that belong to no encoding are an error.";

// Commands that read or make encodings.
std::vector<Command> encoding_commands() {
  return {
      {"json",
       "[FILE...]",
       "Show encodings as JSON documents",
       "Writes the JSON document of each object, from which `quarn der` makes the same octets "
       "again. What a document cannot carry are superfluous octets of lengths and tags, an object "
       "identifier's last arc that is cut off, and constructed elements of tags without a name.",
       {Opt::in_form, Opt::recursive, Opt::compact, Opt::lines},
       {{"quarn json server.pem | jq .", "the certificates of a file"},
        {"quarn json --lines -r /etc/ssl/certs | jq -r 'select(.error).source'",
         "the files of a directory that are bad"}},
       0,
       SIZE_MAX,
       run_json},
      {"der",
       "[FILE]",
       "Turn JSON documents back into encodings",
       "Reads JSON documents in the form that `quarn json` writes, one or several, also as "
       "written with --lines, and writes the octets that they describe. - or no FILE is the "
       "standard input.",
       {Opt::output, Opt::pem, Opt::hex},
       {{"quarn json a.der | quarn der | cmp - a.der", "there and back"},
        {"quarn der --pem CERTIFICATE -o new.pem edited.json", "a certificate edited as text"}},
       0,
       1,
       run_der},
      {"decode",
       "[FILE...]",
       "Show certificates, CRLs and other known types with the names of their parts",
       "Decodes each object as a value of its type and writes a line for each component: name, "
       "type and value. Components that are absent are left out; a default is shown and marked. "
       "Extensions, attributes and other octets whose type an object identifier tells are shown "
       "as values of that type. An encoding that is of no known type is shown as its elements, "
       "and the exit code is 1. With --json or --lines the same is written for programs.",
       {Opt::type, Opt::json, Opt::lines, Opt::compact, Opt::in_form, Opt::recursive, Opt::width},
       {{"quarn decode server.pem", "a certificate, or all of a file"},
        {"quarn decode --json server.pem | jq '.tbsCertificate.extensions[].extnID'",
         "the extensions that it has"},
        {"quarn decode --type GeneralNames names.der", "a part that was cut out"}},
       0,
       SIZE_MAX,
       run_decode},
      {"dump",
       "[FILE...]",
       "Show the elements of encodings for people",
       "Writes one line for each element: offset, header length, content length (indef for the "
       "indefinite form), constructed or primitive, the tag, and the value. Object identifiers "
       "are shown as numbers and by name. Encodings inside OCTET STRING and BIT STRING are shown "
       "below the string; all offsets count from the start of the object. Of a damaged encoding "
       "everything up to the fault is shown.",
       {Opt::in_form, Opt::recursive, Opt::no_dig, Opt::depth, Opt::width},
       {{"quarn dump server.pem", "the tree of a certificate"},
        {"echo '30 03 02 01 05' | quarn dump", "a few octets by hand"}},
       0,
       SIZE_MAX,
       run_dump}};
}

// Commands for what is too large to be held.
std::vector<Command> message_commands() {
  return {
      {"cms",
       "[FILE]",
       "Show a signed or encrypted message of any size, and cut its content out",
       "Reads a message of CMS or PKCS #7 once, from its start to its end, and shows all but its "
       "content: versions, algorithms, signers and recipients, attributes by their names, "
       "certificates and revocation lists in short, and at which octets content and signer infos "
       "stand. Nothing is verified and nothing decrypted: the content of an encrypted message is "
       "what it was encrypted to. Memory does not grow with the content, from a pipe either. FILE "
       "is DER or BER, or PEM with the label CMS or PKCS7, with one message; - or no FILE is the "
       "standard input. Messages in the form of mail (S/MIME) are not read.",
       {Opt::content, Opt::json, Opt::compact, Opt::width},
       {{"quarn cms signed.p7m", "who signed what, and with which algorithms"},
        {"quarn cms --content document.pdf signed.p7m", "the content of a signed document"},
        {"quarn cms --json signed.p7m | jq '.places.content'", "where the content stands"},
        {"curl -s URL | quarn cms --content - | tar x", "from pipe to pipe"}},
       0,
       1,
       run_cms}};
}

// Commands that judge encodings, or carry them from one form of text to another.
std::vector<Command> form_commands() {
  return {
      {"check",
       "[FILE...]",
       "List every departure from DER",
       "Writes a line for each place where an encoding is not DER: the offset in the object, the "
       "path of the element, what was found and what was expected, and the clause of X.690 (2021) "
       "with the name of the rule. Nothing is written for DER. What only the type tells, such as "
       "DEFAULT values that are written and what stands under tags of its own, is judged too when "
       "the type is known: by --type, by the label of a PEM block, or when the octets leave no "
       "doubt, as those of certificates, CRLs and requests do. A SET of different tags may be "
       "ordered by its tags or by its encodings. Encodings inside OCTET STRING and BIT STRING, "
       "such as the values of extensions, are judged too where they make sense. With --json each "
       "line is a JSON object. The exit code is 1 when there is a departure; a file that cannot "
       "be judged gives the codes of all commands.",
       {Opt::type, Opt::in_form, Opt::recursive, Opt::no_dig, Opt::json},
       {{"quarn check server.pem && echo DER", "whether a certificate is DER"},
        {"quarn check --json -r DIR | jq -r 'select(.finding).finding.rule' | sort | uniq -c",
         "which rules the files of a directory break, and how often"},
        {"quarn check --type Extensions cut.der", "a part that was cut out"}},
       0,
       SIZE_MAX,
       run_check},
      {"convert",
       "[FILE...]",
       "Write encodings as DER, PEM, base64 or hexadecimal text",
       "Writes the octets of each object, unchanged, in the form that --to names. A PEM block "
       "keeps its label; other objects get the label that their structure tells: certificates, "
       "CRLs, requests, attribute certificates, CMS (as PKCS7) and keys. For anything else "
       "--label is needed. Hexadecimal text has a line for each object, base64 is one text for "
       "all of them. Octets are not written to a terminal unless -o - asks for it.",
       {Opt::to, Opt::label, Opt::output, Opt::in_form, Opt::recursive},
       {{"quarn convert --to der -o server.der server.pem", "PEM to DER"},
        {"quarn convert --to pem *.der > all.pem", "many files in one"}},
       0,
       SIZE_MAX,
       run_convert}};
}

// Commands that tell what the libraries know.
std::vector<Command> reference_commands() {
  return {
      {"types",
       "[NAME|PATTERN]",
       "List the ASN.1 types that the library names, or show what one is made of",
       "Lists id, name, tag and error codes of the types, or of those whose name contains PATTERN "
       "or matches it when it has *, ? or [. Of a type whose id or whole name is given, the "
       "ASN.1, the standard, the places where it stands and its functions are shown too. Upper "
       "and lower case are the same.",
       {Opt::json},
       {{"quarn types time", "types with time in their name"},
        {"quarn types Certificate", "what a certificate is made of"},
        {"quarn types --json 'x509*' | jq .", "the same for programs"}},
       0,
       1,
       run_types},
      {"error",
       "CODE...",
       "Explain error codes of the libraries",
       "Tells the message of each CODE, hexadecimal as 0x10203 or decimal, what it reports and "
       "which types record it.",
       {Opt::json},
       {{"quarn error 0x10203", "what a code in a log means"}},
       1,
       SIZE_MAX,
       run_error},
      {"help", "[COMMAND]", "Show help", "Shows help for a command.", {}, {}, 0, 1, run_help}};
}

}  // namespace

const std::vector<Command> &commands() {
  static const std::vector<Command> all = [] {
    std::vector<Command> list;
    for (auto *make : {encoding_commands, message_commands, form_commands, reference_commands}) {
      for (Command &command : make()) list.push_back(std::move(command));
    }
    return list;
  }();
  return all;
}

const Command *find_command(std::string_view name) {
  for (const Command &command : commands()) {
    if (name == command.name) return &command;
  }
  return nullptr;
}

const Option &option(Opt id) {
  for (const Option &each : kOptions) {
    if (each.id == id) return each;
  }
  return kOptions[0];
}

std::vector<const Option *> options_of(const Command *command) {
  std::vector<const Option *> list;
  if (command != nullptr) {
    for (const Opt id : command->options) list.push_back(&option(id));
  }
  list.push_back(&option(Opt::color));
  list.push_back(&option(Opt::help));
  if (command == nullptr) list.push_back(&option(Opt::version));
  return list;
}

const char *input_text() {
  return kInputText;
}

std::vector<std::string> split(std::string_view list) {
  std::vector<std::string> items;
  while (!list.empty()) {
    const std::size_t comma = std::min(list.find(','), list.size());
    items.emplace_back(list.substr(0, comma));
    list.remove_prefix(std::min(comma + 1, list.size()));
  }
  return items;
}

std::string full_help(const Option &option) {
  if (option.choices == nullptr) return option.help;
  return std::string(option.help) + " One of " + joined(split(option.choices)) + ".";
}

const std::vector<ExitMeaning> &exit_meanings() {
  static const std::vector<ExitMeaning> meanings = {
      {kGood, "good"},
      {kBadInput, "the input is not acceptable"},
      {kUsage, "the command line is wrong"},
      {kFile, "a file or stream cannot be read or written"},
      {kLimit, "a limit was hit, such as memory"},
      {kSomeFailed, "some of several inputs failed"},
      {kInternal, "an internal error"}};
  return meanings;
}

std::vector<std::string> names_of(const Option &option) {
  return split(option.names);
}

std::string Arguments::value(Opt option, const std::string &fallback) const {
  const auto found = values_.find(option);
  return found == values_.end() ? fallback : found->second;
}

std::uint64_t Arguments::number(Opt option, std::uint64_t fallback) const {
  const auto found = values_.find(option);
  if (found == values_.end()) return fallback;
  std::uint64_t number = fallback;
  const std::string &text = found->second;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::size_t Arguments::width() const {
  constexpr std::size_t kDefaultWidth = 72;  // as the help says
  return number(Opt::width, kDefaultWidth);
}

}  // namespace quarn::cli
