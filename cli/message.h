// A message of CMS or PKCS #7, decoded apart from its content.
//
//     SEQUENCE                          ContentInfo, unless the message is a SignedData alone
//       OBJECT IDENTIFIER signedData
//       [0]
//         SEQUENCE                      the message; all offsets count from the octet at the top
//           ...
//           SEQUENCE                    content_info
//             OBJECT IDENTIFIER data
//             [0]
//               OCTET STRING            content
//           SET                         signer_infos
#ifndef QUARN_CLI_MESSAGE_H
#define QUARN_CLI_MESSAGE_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "cli/message_input.h"

namespace quarn::cli {

// Octets from `offset` to before `end` of the message.
struct Range {
  std::uint64_t offset;
  std::uint64_t end;
};

struct FreeValue {
  std::int64_t type_id = 0;
  void operator()(void *value) const;
};

struct Message {
  std::string content_type;  // of the ContentInfo around it; empty when there is none
  std::int64_t type_id = 0;
  std::unique_ptr<void, FreeValue> value;
  bool pem = false;
  std::uint64_t length = 0;      // octets of all of it
  std::optional<Range> content;  // element that holds the content; nothing when it is elsewhere
  std::uint64_t content_length = 0;
  std::optional<Range> content_info;  // of signed data
  std::optional<Range> signer_infos;
};

// Whether the content of a message may stand in values of a type.
bool holds_content(std::int64_t type_id);

// Reads a message to its end, and writes its content to the stream, unless that is null. Throws
// Failure.
Message read_message(MessageInput &input, quarn_stream *content);

}  // namespace quarn::cli

#endif
