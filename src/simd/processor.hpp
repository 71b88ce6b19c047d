// What an architecture has of its own beside vectors. x86/ and portable/ hold its two forms; the build takes
// one.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessaro::processor {

// The feature flags of x86 processors (EDX of function 1 of their identification). Others report MMX, SSE and
// SSE2: hosts ask whether there is vector code.
uint32_t feature_flags();

// Whether stores past the caches outrun all else in large areas. On AMD's processors they do by half and
// more, while their string instructions fall to a tenth where source and destination are aligned unlike. On
// Intel's, string instructions copy as fast.
bool streams_well();

// Writes the word so many times, best for thousands: x86 has an instruction that need not fetch the lines it
// overwrites.
void fill(uint8_t* at, uint32_t word, size_t count);

// a modulo b. b = 0 faults on all processors, on x86 by the division itself; the language would leave it
// undefined.
uint32_t remainder(uint32_t a, uint32_t b);

}  // namespace tessaro::processor
