/**
 * @file
 * @brief Waveforms: samples, blits, resampling, dynamics, reverb and spectrum.
 *
 * **Frames.** A frame is a left and a right sample one after the other, or one mono sample; frames follow
 * without padding and without alignment.
 *
 * **Scales.** Functions work on frames at one of three scales, which each of them names. A stored sample
 * becomes a value, and a value `v` a stored sample, so (`>>` keeps the sign, stored integers keep the low
 * bits of what does not fit):
 *
 * | a stored sample of | is at the 16-bit scale | at the 24-bit scale | at the float scale |
 * |---|---|---|---|
 * | 8 bits | `(byte - 128) << 8` | `(byte - 128) << 16` | `(byte - 128) * (1 / 127.0)` |
 * | 16 bits | as it is | `sample << 8` | `sample * (1 / 32767.0)` |
 * | 24 bits | `sample >> 8` | as it is | `sample * (1 / 8388607.0)` |
 * | 64 bits | taken for 24 bits | taken for 24 bits | as it is |
 *
 * | a value is stored in | from the 16-bit scale | from the 24-bit scale | from the float scale |
 * |---|---|---|---|
 * | 8 bits | `(v + 32768) >> 8` | `(v + 8388608) >> 16` | `128 - trunc(v * -127)` |
 * | 16 bits | `v` | `v >> 8` | `trunc(v * 32767)` |
 * | 24 bits | `v << 8` | `v` | `trunc(v * 8388607)` |
 * | 64 bits | taken for 24 bits | taken for 24 bits | `v` |
 *
 * The integer scales take a 64-bit buffer for packed 24-bit samples, without notice: convert with `waveBlt64`
 * first. Writing at the float scale first clamps to -1..1, and takes what is not a number for -1. The lowest
 * integers read a little below -1.
 *
 * **Mono.** A mono frame is read as two equal channels. Written to one, both values are first brought to the
 * stored width as in the table (8-bit ones as bytes with the 128 in them); the mean of the two, before high
 * bits are dropped, is `(l + r) / 2`, truncated toward zero, and its low bits are stored. Only at the 16-bit
 * scale into 24 bits is the mean taken before the shift. Integer sums wrap in 32 bits; doubles are `(l + r) *
 * 0.5`.
 *
 * **Places.** Positions are frames, any 32-bit integer: frames outside a buffer read as silence, and writing
 * them does nothing. Functions go frame after frame in increasing order, each read before it is written.
 * Source and destination may share memory; later frames then see what earlier ones wrote.
 *
 * **Refusals.** A format with an invalid field, or a parameter that is said to be refused, returns 1 and
 * changes nothing. Where neither is so, a frame count below 1 does nothing and returns 0, if not said
 * otherwise. Rates are not compared: nothing is resampled but by `waveExpand`.
 *
 * No pointer may be null, and none is checked.
 */
#ifndef TESSARO_WAVE_H
#define TESSARO_WAVE_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Widths of a stored sample. */
enum TessaroSampleBits {
  TESSARO_BITS_8 = 8,   /**< One byte, 128 is silence. */
  TESSARO_BITS_16 = 16, /**< Signed, little-endian, two bytes. */
  TESSARO_BITS_24 = 24, /**< Signed, little-endian, three bytes. */
  TESSARO_BITS_64 = 64  /**< A double, -1 to 1. */
};

/** Samples a frame. */
enum TessaroChannels {
  TESSARO_MONO = 1,  /**< One sample. */
  TESSARO_STEREO = 2 /**< Left, then right. */
};

/** Sizes that the reverb is built on. */
enum TessaroReverb {
  TESSARO_REVERB_RING_FRAMES = 524288, /**< Frames of the ring, of two doubles each: 8 MiB. */
  TESSARO_REVERB_TAPS = 10000          /**< Entries of each of the three parts of a tap table. */
};

/**
 * @brief A buffer of samples of the host's. The library never writes the record, and never allocates or
 * resizes samples. Neither needs any alignment.
 */
typedef struct WaveBuffer {
  int32_t format; /**< `rate * 256 + bits + channels`, see waveFormatEnc. Valid rates are 1000..441000 Hz. */
  int32_t count;  /**< Frames; a buffer with a negative count has none. */
  void* data;     /**< Frame 0. */
} WaveBuffer;

/**
 * @defgroup samples Single samples
 * @brief Read and write one frame of plain memory, at each of the scales.
 *
 * Any channels other than 2 mean mono. The integer functions take bits other than 8 and 16 for 24; the float
 * ones do nothing for bits other than 8, 16, 24 and 64. An index outside `0..count - 1` reads zeros and
 * writes nothing; unknown bits at the float scale together with such an index read zeros too.
 *
 * @param[in] data [max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
 *   min(abs(channels - 2), 1)) bytes] Frame 0: 1, 2 or 3 bytes a sample, 1 or 2 samples.
 * @param index [index] The frame.
 * @param bits [one of TessaroSampleBits] The width of a stored sample.
 * @param channels [one of TessaroChannels] Samples a frame.
 * @param count [frames, trusted] Frames that the memory holds.
 * @retval 0 Always.
 * @{
 */

/**
 * @brief Reads a frame at the 16-bit scale.
 * @param[out] left [1 words] The left sample, or the only one.
 * @param[out] right [1 words] The right sample, or the only one.
 */
TESSARO_API int32_t TESSARO_CALL GetWave(const void* data, int32_t index, int32_t bits, int32_t channels,
                                         int32_t count, int32_t* left, int32_t* right);
/**
 * @brief Writes a frame at the 16-bit scale, without clamping.
 * @param[in,out] data [max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
 *   min(abs(channels - 2), 1)) bytes] Frame 0.
 * @param left [value] The left value; what does not fit loses its high bits.
 * @param right [value] The right one.
 */
TESSARO_API int32_t TESSARO_CALL LetWave(void* data, int32_t index, int32_t bits, int32_t channels,
                                         int32_t count, int32_t left, int32_t right);
/**
 * @brief Reads a frame at the 24-bit scale.
 * @param[out] left [1 words] The left sample, or the only one.
 * @param[out] right [1 words] The right sample, or the only one.
 */
TESSARO_API int32_t TESSARO_CALL GetWave24(const void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, int32_t* left, int32_t* right);
/**
 * @brief Writes a frame at the 24-bit scale, without clamping.
 * @param[in,out] data [max(count, 0) * (2 * min(abs(bits - 8), 1) + min(abs(bits - 16), 1)) * (2 -
 *   min(abs(channels - 2), 1)) bytes] Frame 0.
 * @param left [value] The left value; what does not fit loses its high bits.
 * @param right [value] The right one.
 */
TESSARO_API int32_t TESSARO_CALL LetWave24(void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, int32_t left, int32_t right);
/**
 * @brief Reads a frame at the float scale.
 * @param[in] data [max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes] Frame 0.
 * @param[out] left [1 doubles] The left sample, or the only one; untouched for unknown bits.
 * @param[out] right [1 doubles] The right sample, or the only one; untouched for unknown bits.
 */
TESSARO_API int32_t TESSARO_CALL GetWave64(const void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, double* left, double* right);
/**
 * @brief Writes a frame at the float scale, clamped to -1..1.
 * @param[in,out] data [max(count, 0) * min(bits / 8, 8) * (2 - min(abs(channels - 2), 1)) bytes] Frame 0.
 * @param left [value, -1..1] The left value; not a number counts as -1.
 * @param right [value, -1..1] The right one.
 */
TESSARO_API int32_t TESSARO_CALL LetWave64(void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, double left, double right);

/** @} */

/**
 * @defgroup waveformats Formats of a buffer
 * @brief Format codes, and conversion between them.
 * @{
 */

/**
 * @brief Packs a format code: `rate * 256 + bits + channels`.
 * @param bits [one of TessaroSampleBits] The width of a sample.
 * @param channels [one of TessaroChannels] Samples a frame.
 * @param rate [hertz, 1000..441000] Frames a second. Not checked here: the functions that take the code
 *   refuse other rates.
 * @return [value] The code, in the low 32 bits; 0 for other bits or channels.
 */
TESSARO_API int32_t TESSARO_CALL waveFormatEnc(int32_t bits, int32_t channels, int32_t rate);

/**
 * @brief Converts a whole buffer at the 16-bit scale: frames `0..dst->count - 1`, silence past the end of
 * `src`.
 *
 * 24-bit samples lose their lowest byte. For full resolution and for 64-bit buffers use `waveBlt64`.
 *
 * @param[in,out] dst [sound] The buffer that is filled.
 * @param[in] src [sound] The buffer that is read.
 * @retval 0 Done.
 * @retval 1 [untouched] One of the formats is invalid.
 */
TESSARO_API int32_t TESSARO_CALL waveFormat(const WaveBuffer* dst, const WaveBuffer* src);

/** @} */

/**
 * @defgroup waveblits Blits of samples
 * @brief Copy or mix a run of frames from one buffer into another.
 *
 * For `i = 0..count - 1`, `s` is frame `src_start + i` of `src`, `d` is frame `dst_start + i` of `dst`, and
 * the result is written to the latter, each channel for itself. Results saturate to the range of their scale
 * unless said otherwise. `trunc` drops the fraction.
 *
 * @param[in,out] dst [sound] The buffer that is written.
 * @param[in] src [sound] The buffer that is read.
 * @param dst_start [frames] The first frame written; may be negative or past the end.
 * @param src_start [frames] The first frame read; may be negative or past the end.
 * @param count [frames] How many frames; below 1 does nothing and returns 0.
 * @param gain [factor, 0..4] A negative gain and not a number are refused; above 4 counts as 4.
 * @retval 0 Done.
 * @retval 1 [untouched] A format is invalid, or a parameter is refused.
 * @{
 */

/**
 * @brief Copies with a gain at the 24-bit scale: `(s * trunc(gain * 64)) >> 6`.
 * @param gain [factor, 0..4] Limited to this range; not a number counts as 0. From 1 to below 1 + 1/64 frames
 *   are copied exactly.
 */
TESSARO_API int32_t TESSARO_CALL waveBlt(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                         int32_t src_start, int32_t count, float gain);

/**
 * @brief Moving average at the 16-bit scale: the sum of the source frames from `radius` before to `radius`
 * after, divided by `2 * radius + 1` and truncated toward zero.
 *
 * Frames before `src_start + radius` count as silence, so the first `2 * radius` results fade in. The cost
 * does not depend on the radius.
 *
 * @param radius [frames, 1..511] Below 1 is refused; above 511 counts as 511.
 */
TESSARO_API int32_t TESSARO_CALL waveBltBlur(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                             int32_t src_start, int32_t count, int32_t radius);

/**
 * @brief Exclusive-or at the 16-bit scale: `d ^ s`, with `s` read `offset` frames further on. Between 16-bit
 * buffers, the same call undoes it.
 * @param offset [frames, 1..2147483647] Below 1 is refused.
 */
TESSARO_API int32_t TESSARO_CALL waveBltGluder(const WaveBuffer* dst, const WaveBuffer* src,
                                               int32_t dst_start, int32_t src_start, int32_t count,
                                               int32_t offset);

/**
 * @brief Copies with noise at the 16-bit scale: `s + (((noise - 32768) * trunc(amount * 256)) >> 8)`.
 *
 * `noise` is `GetRandom(65536)`, drawn for the left and then for the right channel of every frame, whatever
 * the formats, the amount and the ends of the buffers: the result depends on every other draw in the process.
 * A run of 2^31 frames therefore takes seconds.
 *
 * @param amount [factor, 0..1] Limited to this range; not a number counts as 0.
 */
TESSARO_API int32_t TESSARO_CALL waveBltAddNoise(const WaveBuffer* dst, const WaveBuffer* src,
                                                 int32_t dst_start, int32_t src_start, int32_t count,
                                                 float amount);

/**
 * @brief Copies with a tone at the 16-bit scale: `s + trunc(sin(phase) * amplitude * 32768)`, the same tone
 * in both channels.
 *
 * From `phase = modulation = 0` and `increment = frequency`, after every frame: `phase += increment` (the old
 * one), `modulation += rate`, `increment += sin(modulation) * depth` (the new modulation). The three are kept
 * in single precision; sines, the product `sin(phase) * amplitude * 32768` and the sum that becomes the
 * increment are formed in double. Every call begins anew. From a far negative position the tone is worked
 * through.
 *
 * @param amplitude [factor, -1..1] Limited to this range; not a number counts as -1.
 * @param frequency [radians] The first increment: radians a frame, not hertz. `2 * pi * hertz /
 *   rate_of_the_buffer`.
 * @param depth [radians] How much the increment moves in a frame at most.
 * @param rate [radians] The speed of that movement: radians a frame, not hertz.
 */
TESSARO_API int32_t TESSARO_CALL waveBltSin(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float amplitude,
                                            float frequency, float depth, float rate);

/** Mixes at the 16-bit scale: `d + ((s * trunc(gain * 256)) >> 8)`. */
TESSARO_API int32_t TESSARO_CALL waveBltAdd(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float gain);
/** Subtracts at the 16-bit scale: `d - ((s * trunc(gain * 256)) >> 8)`. */
TESSARO_API int32_t TESSARO_CALL waveBltSub(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float gain);
/**
 * @brief Ring modulation by the magnitude of the source, at the 16-bit scale: `(abs(s) * d) >> 15`. The gain
 * can refuse, and does nothing else.
 */
TESSARO_API int32_t TESSARO_CALL waveBltMul(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float gain);

/**
 * @brief Copies at the float scale: converts between all formats, and keeps what they can hold to within one
 * unit.
 */
TESSARO_API int32_t TESSARO_CALL waveBlt64(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                           int32_t src_start, int32_t count);

/**
 * @brief Multiplies by `target / 0.01` at the float scale, clamped to -1..1. Despite the name the level of
 * the material plays no part.
 *
 * The quotient is formed in double precision from the single-precision target.
 *
 * @param target [factor, 0..1] Limited to this range; not a number counts as 0. 0.01 keeps the level, 1
 *   multiplies it by 100.
 */
TESSARO_API int32_t TESSARO_CALL waveNormal(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float target);

/**
 * @brief Silences frames `start..start + count - 1`.
 * @param start [frames] The first frame; may be negative or past the end.
 */
TESSARO_API int32_t TESSARO_CALL waveClear64(const WaveBuffer* dst, int32_t start, int32_t count);

/** @} */

/**
 * @defgroup resampling Resampling
 * @brief Read sound at another speed.
 * @{
 */

/**
 * @brief Fills `dst` with `src` read at a constant speed: frame `i` is the blend of the two source frames
 * around `p = i * ratio`.
 *
 * `p` is formed in double precision, `n = trunc(p)`.
 * - Same bits and channels, 8 or 16 bits: stored samples are blended, `(sample(n + 1) * f + sample(n) * (256
 * - f)) >> 8` with `f = trunc((p - n) * 256)`. The last source frame is held; frames from `src->count` on are
 *   silence.
 * - Same bits and channels, 24 or 64 bits: nothing is written, and 0 returned. Go through a buffer of other
 *   bits.
 * - All else at the 16-bit scale: `((32768 - f) * s(n) + f * s(n + 1)) >> 15` with `f = trunc((p - n) *
 *   32768)`; behind the last frame lies silence, into which it fades.
 *
 * @param[in,out] dst [sound] The buffer that is filled, all of it.
 * @param[in] src [sound] The buffer that is read.
 * @param ratio [factor, 0..inf] Source frames for each destination frame: above 1 is faster and higher.
 *   Negative and not a number are refused.
 * @retval 0 Done, or nothing to do.
 * @retval 1 [untouched] A format is invalid or the ratio refused.
 */
TESSARO_API int32_t TESSARO_CALL waveExpand(const WaveBuffer* dst, const WaveBuffer* src, float ratio);

/** @} */

/**
 * @defgroup dynamics Dynamics and reverb
 * @brief Effects whose state is the host's, so that sound can be streamed block by block.
 *
 * Positions are counters of the host's, passed by pointer; each call advances them by `count`. One sound's
 * state must not be used by two calls at once.
 *
 * @param[in,out] look_position [1 words] The first frame whose loudness is looked at. A host keeps it a block
 *   or more ahead of the write position.
 * @param[in,out] write_position [1 words] The first frame that is changed.
 * @param count [frames, 1..2147483647] The length of the block. Below 1 is refused.
 * @retval 0 Done.
 * @retval 1 [untouched] A format is invalid or the count is below 1.
 * @{
 */

/**
 * @brief Raises quiet passages, in place, at the 24-bit scale.
 *
 * In the `count` frames at the look position, magnitudes are limited to 8388607 and their bits joined by or.
 * Each channel's new gain is `gain * growth`, at least 1 and at most 8; at most 4 with bit 20, 2 with bit 21,
 * 1 with bit 22 (the highest that is set decides). The gain thus grows once a call. Frames at the write
 * position are multiplied by `old, old + step, old + 2 * step, ...` with `step = (new - old) / count`, by
 * repeated addition, and truncated. Where a loud block follows, the first products may not fit and then wrap;
 * beyond 32 bits, and where the gain is not a number, they count as -2^31. A gain that is not a number stays
 * so.
 *
 * @param[in,out] buffer [sound] The sound.
 * @param growth [factor, 1.0001..1.7] Limited to this range; not a number counts as 1.0001.
 * @param[in,out] left_gain [1 doubles] The gain of the left channel; a host begins with 1.0.
 * @param[in,out] right_gain [1 doubles] The gain of the right channel.
 */
TESSARO_API int32_t TESSARO_CALL waveEffectMaximizer24(const WaveBuffer* buffer, int32_t* look_position,
                                                       int32_t* write_position, int32_t count, double growth,
                                                       double* left_gain, double* right_gain);

/**
 * @brief Raises quiet passages at the float scale, from `src` to `dst`, both at the write position. Results
 * are clamped to -1..1.
 *
 * A state is the gain less 16. It becomes `state + step`, but at least -15 (a gain of 1), and then at most
 * `limit - 16`: for loud material the limit wins. The limit follows from the peak `p` of the `count` source
 * frames at the look position, the largest magnitude in the channel:
 *
 * | p from | limit |
 * |---|---|
 * | 0 | 16 |
 * | 0.06249 | 14 |
 * | 0.07142 | 12 |
 * | 0.08333 | 10 |
 * | 0.09999 | 8 |
 * | 0.1249 | 6 |
 * | 0.1666 | 4 |
 * | 0.249 | 2 |
 * | 0.49 | 1 |
 * | 0.99 | 0.5 |
 * | 1.99 | 0.25 |
 * | 3.99 | 0.125 |
 * | 7.99 | 0 |
 *
 * A state that is not a number stays so; samples that are not a number do not count in the peak. The gain
 * moves over the block as in `waveEffectMaximizer24`, from `old state + 16` to `new state + 16`.
 *
 * @param[in,out] dst [sound] The buffer that is written.
 * @param[in] src [sound] The buffer that is read.
 * @param step [factor, 0..9.9] Limited to this range; not a number counts as 0.
 * @param[in,out] left_state [1 doubles] The state of the left channel; a host begins with -15.0.
 * @param[in,out] right_state [1 doubles] The state of the right channel.
 */
TESSARO_API int32_t TESSARO_CALL waveEffectMaximizer64(const WaveBuffer* dst, const WaveBuffer* src,
                                                       int32_t* look_position, int32_t* write_position,
                                                       int32_t count, double step, double* left_state,
                                                       double* right_state);

/**
 * @brief Adds echoes to `count` frames from the frame position on, in place, at the float scale.
 *
 * For every frame, with `r` the ring position:
 * 1. ring frame `r + 199`, times 0.005, is added to the frame, which is written clamped;
 * 2. ring frame `r` is cleared;
 * 3. with `e = (left + right) * (level * 0.5)` of the frame as it was read, unless that is 0 or not a number:
 *    from `x = r + predelay`, for each tap, with `i = trunc(x)` in 64 bits (-2^63 for what does not fit or is
 *    not a number) and `f = x - i`, ring frame `i` receives `(1
 * - f) * e * gain` and ring frame `i + 1` receives `f * e * gain` of each channel's gain; then `x += spread *
 *   distance`;
 * 4. both positions advance by one.
 *
 * Ring frames are taken modulo 524288. So an echo is heard 199 frames before its delay is over, and one of
 * less than 200 frames never. Calls that pass on the ring and both positions make one continuous reverb.
 * Frames outside the buffer are silence, and only clear the ring.
 *
 * @param[in,out] buffer [sound] The sound. A count of 0 is refused; a negative one is silence.
 * @param[in,out] frame_position [1 words] The first frame; advanced by `count`.
 * @param[in,out] ring [sound, 8388608 bytes] A 64-bit buffer of at least 524288 frames by its count, whatever
 *   its channels used as 524288 frames of two doubles: its data must be 8 MiB, cleared by the host before the
 *   first call. Its format and count may say one channel, but not less memory.
 * @param[in,out] ring_position [1 words] The place in the ring, 0..524287; other values are taken modulo
 *   524288.
 * @param level [factor, 0..99.99] How loud the echoes are sent; limited to this range, not a number counts as
 *   0.
 * @param predelay [frames, 10..88200] From a frame to its first echo; limited to this range.
 * @param spread [factor, 1..44100] Multiplies the distances of the taps; limited to this range.
 * @param taps [count, 1..10000] How many echoes a frame has; limited to this range.
 * @param[in] tap_table [30000 doubles] 10000 left gains, 10000 right gains, 10000 distances from a tap to the
 *   next in frames; the first `taps` of each are read.
 * @retval 0 Done.
 * @retval 1 [untouched] The count is below 1; the buffer is invalid or has a count of 0; the ring is invalid,
 *   has fewer frames or other bits; or there is no memory for the distances of the taps, 8 bytes each.
 */
TESSARO_API int32_t TESSARO_CALL waveEffectReverbA1(const WaveBuffer* buffer, int32_t* frame_position,
                                                    const WaveBuffer* ring, int32_t* ring_position,
                                                    int32_t count, double level, int32_t predelay,
                                                    int32_t spread, int32_t taps, const double* tap_table);

/** @} */

/**
 * @defgroup spectrum Spectrum
 * @brief The discrete Fourier transform of a run of frames.
 *
 * `re[k]` and `im[k]` become bin `k` of the transform of left plus right (a mono frame counts twice) at the
 * float scale: the sum over `i` of `x[i] * exp(+2 * pi * I * i * k / n)`, the exponent positive, without a
 * window and not normalised. Method: radix-2 decimation in frequency, in place, then reordering by reversed
 * bits (Cooley and Tukey, Math. Comp. 19, 1965; Gentleman and Sande, AFIPS 29, 1966): for spans `m = n, n /
 * 2, ...` with `k = m / 2` and an angle `t`, first `6.28318530717959 / n` (no misprint), then doubled with
 * each span, the values `a` and `b` at a distance of `k`, the `j`-th pair of a span, become `a + b` and `(a -
 * b) * (cos(j * t) + I * sin(j * t))`, the product as `re * c - im * s` and `re * s + im * c`, all in double
 * precision. `n` is meant to be a power of two; others run through the same steps to no useful result.
 *
 * @param[in] buffer [sound] The sound.
 * @param start [frames] The first frame.
 * @param n [frames, trusted] The length of the run and of both arrays.
 * @param[in,out] re [n doubles] Real parts. Must not share memory with the sound or with `im`.
 * @param[in,out] im [n doubles] Imaginary parts.
 * @retval 0 Done.
 * @retval 1 [untouched] The format is invalid.
 * @retval 2 [untouched] `n` is below 1 or `start` negative.
 * @retval 3 [untouched] The run leaves the buffer.
 * @{
 */

/** Real and imaginary parts of the spectrum. */
TESSARO_API int32_t TESSARO_CALL wavefft(const WaveBuffer* buffer, int32_t start, int32_t n, double* re,
                                         double* im);

/**
 * @brief Magnitude and angle: after `wavefft`, `re[k]` becomes `sqrt(re * re + im * im)` and `im[k]` becomes
 * `atan2(re, im)`, in radians from the imaginary axis.
 *
 * The arctangent is within one unit in the last place of the exact one, and the same on every target. The
 * arrays are converted whatever the result, if `n` is at least 1: what they hold must be defined.
 *
 * @retval 0 Done.
 * @retval 1 The format is invalid; the arrays are converted all the same.
 * @retval 2 `n` is below 1, or `start` is negative and the arrays are converted all the same.
 * @retval 3 The run leaves the buffer; the arrays are converted all the same.
 */
TESSARO_API int32_t TESSARO_CALL wavefft2(const WaveBuffer* buffer, int32_t start, int32_t n, double* re,
                                          double* im);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
