#include "decoder_fuzz.hpp"

TESSARO_FUZZ_DECODER(ib18DecoderExSafe, ib18DecoderEx)
