"""The notation of structured types (modules/*.asn1): read, checked against the registry, and written as C and C++."""
