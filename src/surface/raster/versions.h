// Loops over pixels in two versions: for every processor of its kind, and for those with wider
// registers. The loader picks one; both give the same pixels, since neither fuses a product with a
// sum.
#pragma once

// The sanitizers would run before the choice is made.
#if defined(__x86_64__) && defined(__linux__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define HAS_WIDE_VERSIONS
#define WIDE_VERSIONS [[gnu::target_clones("avx2", "default")]]
#else
#define WIDE_VERSIONS
#endif
