// libjpeg and libpng report errors through a function that must not return.
#pragma once

#include <csetjmp>

namespace tessaro::platform {

// This is the only place to which they jump; nothing with a destructor may live in `body`, and what it
// changes must lie outside.
template <class Body>
[[gnu::noinline]] void until_error(jmp_buf& out, const Body& body) {
  if (!setjmp(out)) body();
}

}  // namespace tessaro::platform
