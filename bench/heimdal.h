// Heimdal's headers, which are written for C and for other warnings than ours.
#ifndef QUARN_BENCH_HEIMDAL_H
#define QUARN_BENCH_HEIMDAL_H

#include <cstdint>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
extern "C" {
#include <heimdal/asn1_err.h>
// The rest after what it needs.
#include <heimdal/cms_asn1.h>
#include <heimdal/rfc2459_asn1.h>
// And this last.
#include <heimdal/der.h>
}
#pragma GCC diagnostic pop

#endif
