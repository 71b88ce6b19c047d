#include "decoder_fuzz.hpp"

TESSARO_FUZZ_DECODER(indaDecoderSafe, indaDecoder)
