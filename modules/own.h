// What the modules add to the engine for irregular types: codecs and checks that a definition's notes
// name. Each is defined, with the reason for it, in the source of its module.
#ifndef QUARN_MODULES_OWN_H
#define QUARN_MODULES_OWN_H

#include "core/schema.h"
#include "core/type.h"

namespace quarn::asn1 {

#include "modules/gen/own.inc"

}  // namespace quarn::asn1

#endif
