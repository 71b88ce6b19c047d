// A program has no DllMain: on Windows nothing else runs the load handler. Elsewhere it runs a second time.
#include "platform/platform.hpp"

[[maybe_unused]] static const bool loaded = (tessaro::on_load(), true);
