#include "decoder_fuzz.hpp"

TESSARO_FUZZ_DECODER(ib18DecoderSafe, ib18Decoder)
