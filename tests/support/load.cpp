// Runs the load handler before any test, as attaching the library would.
#include "frame/process.hpp"

[[maybe_unused]] static const bool loaded = (tessaro::on_load(), true);
