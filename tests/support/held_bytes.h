// What the process holds on the heap, for tests of what must not grow.
#pragma once

#include <malloc.h>

#include <cstddef>

#ifdef __SANITIZE_ADDRESS__
// The compiler's headers leave it out.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
inline std::size_t heldBytes() { return __sanitizer_get_current_allocated_bytes(); }
#else
inline std::size_t heldBytes() {
  const auto info = mallinfo2();
  return info.uordblks + info.hblkhd;
}
#endif
