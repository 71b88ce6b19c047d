#include "decoder_fuzz.hpp"

TESSARO_FUZZ_DECODER(imistDecoderSafe, imistDecoder)
