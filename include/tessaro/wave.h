/* Waveforms. */
#ifndef TESSARO_WAVE_H
#define TESSARO_WAVE_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A buffer of samples of the host's. The library never writes the record, and never allocates or resizes samples.
 *
 *   format   rate * 256 + bits + channels: the rate in Hz 1000..441000, bits 8, 16, 24 or 64, channels 1 or 2
 *   count    frames; a buffer with a negative count has none
 *   data     frame 0; no alignment is needed
 *
 * A frame is a left and a right sample one after the other, or one mono sample; frames follow without padding.
 *   8 bits    one byte, 128 is silence
 *   16 bits   signed, little-endian
 *   24 bits   signed, three bytes, the lowest first
 *   64 bits   a double, -1 to 1
 *
 * Functions work on frames at one of three scales: 16-bit and 24-bit integers, and doubles where 127, 32767 and
 * 8388607 stand for 1 (the lowest integer lies a little below -1). The integer scales take a 64-bit buffer for packed
 * 24-bit samples, without notice. A mono frame is read as two equal channels; what is written to one is the mean
 * of both, truncated. Writing at an integer scale keeps the low bits of what does not fit; writing doubles clamps
 * to -1..1 and takes what is not a number for -1.
 *
 * Positions are frames, any 32-bit integer: frames outside a buffer read as silence, and writing them does
 * nothing. Functions process frame after frame in increasing order, each read before it is written; source and
 * destination may share memory, and later frames then see what earlier ones wrote.
 *
 * An invalid field in a format returns 1 and changes nothing; so does a parameter that is refused. Where neither is
 * so a frame count below 1 does nothing and returns 0, if not said otherwise. Rates are not compared: nothing
 * is resampled but by waveExpand. Neither the record nor its samples need any alignment. */
typedef struct WaveBuffer {
  int32_t format;
  int32_t count;
  void* data;
} WaveBuffer;

/* ---- Samples
 *
 * One frame of a block of samples, at the 16-bit, 24-bit and float scales. Channels other than 2 mean mono. index
 * outside 0..count - 1 reads zeros and writes nothing. Return 0. The integer functions take bits other than 8 and
 * 16 for 24; the float ones do nothing for bits other than 8, 16, 24 and 64. */
TESSARO_API int32_t TESSARO_CALL GetWave(const void* data, int32_t index, int32_t bits, int32_t channels,
                                         int32_t count, int32_t* left, int32_t* right);
TESSARO_API int32_t TESSARO_CALL LetWave(void* data, int32_t index, int32_t bits, int32_t channels,
                                         int32_t count, int32_t left, int32_t right);
TESSARO_API int32_t TESSARO_CALL GetWave24(const void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, int32_t* left, int32_t* right);
TESSARO_API int32_t TESSARO_CALL LetWave24(void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, int32_t left, int32_t right);
TESSARO_API int32_t TESSARO_CALL GetWave64(const void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, double* left, double* right);
TESSARO_API int32_t TESSARO_CALL LetWave64(void* data, int32_t index, int32_t bits, int32_t channels,
                                           int32_t count, double left, double right);

/* A format code, or 0 for invalid bits or channels. The rate is not checked. */
TESSARO_API int32_t TESSARO_CALL waveFormatEnc(int32_t bits, int32_t channels, int32_t rate);

/* Converts the first dst->count frames of src at the 16-bit scale, silence past its end: 24-bit samples lose
 * their lowest byte. */
TESSARO_API int32_t TESSARO_CALL waveFormat(const WaveBuffer* dst, const WaveBuffer* src);

/* ---- Blits
 *
 * Frames src_start + i of src go to frames dst_start + i of dst for i = 0..count - 1; s is the source's and d
 * the destination's frame, in each channel. Results saturate unless said otherwise. */

/* (s * trunc(gain * 64)) >> 6 at the 24-bit scale; the gain is limited to 0..4, not-a-number counts as 0. Gains from 1
 * to below 1 + 1/64 copy exactly. */
TESSARO_API int32_t TESSARO_CALL waveBlt(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                         int32_t src_start, int32_t count, float gain);

/* The mean of the source from radius frames before to radius after, truncated toward zero, at the 16-bit scale. Frames
 * before src_start + radius count as silence: the first 2 * radius results fade in. A radius below 1 is
 * refused, one above 511 counts as 511. The cost does not depend on it. */
TESSARO_API int32_t TESSARO_CALL waveBltBlur(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                             int32_t src_start, int32_t count, int32_t radius);

/* d ^ s at the 16-bit scale, where the source is read offset frames further on. An offset below 1 is refused. */
TESSARO_API int32_t TESSARO_CALL waveBltGluder(const WaveBuffer* dst, const WaveBuffer* src,
                                               int32_t dst_start, int32_t src_start, int32_t count,
                                               int32_t offset);

/* s + (((noise - 32768) * trunc(amount * 256)) >> 8) at the 16-bit scale, with noise = GetRandom(65536) drawn for
 * the left and then for the right channel of every frame, whatever the formats, the amount and the buffers'
 * ends. The amount is limited to 0..1, not-a-number counts as 0. */
TESSARO_API int32_t TESSARO_CALL waveBltAddNoise(const WaveBuffer* dst, const WaveBuffer* src,
                                                 int32_t dst_start, int32_t src_start, int32_t count,
                                                 float amount);

/* s + trunc(sin(phase) * amplitude * 32768) at the 16-bit scale, the same tone in both channels. The amplitude is limited
 * to -1..1, not-a-number counts as -1. In single precision, from phase = modulation = 0 and increment = frequency,
 * after every frame: phase += increment; modulation += rate; increment += sin(modulation) * depth. Angles are
 * radians. */
TESSARO_API int32_t TESSARO_CALL waveBltSin(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float amplitude,
                                            float frequency, float depth, float rate);

/* d + ((s * trunc(gain * 256)) >> 8), and d - ..., at the 16-bit scale. A gain that is negative or not a number is
 * refused, one above 4 counts as 4. */
TESSARO_API int32_t TESSARO_CALL waveBltAdd(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float gain);
TESSARO_API int32_t TESSARO_CALL waveBltSub(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float gain);

/* (|s| * d) >> 15 at the 16-bit scale: ring modulation by the source's magnitude. The gain is refused as above and not
 * used otherwise. */
TESSARO_API int32_t TESSARO_CALL waveBltMul(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float gain);

/* Copies at the float scale, which converts between all formats and keeps what they can hold to within one unit. */
TESSARO_API int32_t TESSARO_CALL waveBlt64(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                           int32_t src_start, int32_t count);

/* Silences frames start..start + count - 1. */
TESSARO_API int32_t TESSARO_CALL waveClear64(const WaveBuffer* dst, int32_t start, int32_t count);

/* ---- Resampling */

/* Fills dst with src read at a constant speed: frame i is the linear blend of the two source frames around i * ratio,
 * silence past the source's end. Between buffers of the same bits and channels 8-bit and 16-bit samples are blended
 * as stored with a fraction of 8 bits, the last source frame being held; 24 and 64 bits do nothing and return 0.
 * Other pairs go through the 16-bit scale with a fraction of 15 bits, the last frame fading into silence. A ratio that
 * is negative or not a number is refused. */
TESSARO_API int32_t TESSARO_CALL waveExpand(const WaveBuffer* dst, const WaveBuffer* src, float ratio);

/* ---- Dynamics and reverb
 *
 * Their state is the host's, so that sound can be streamed block by block. */

/* Raises quiet passages, in place, at the 24-bit scale. From the `count` frames at *look_position each channel's gain
 * for the end of the block follows: gain * growth (limited to 1.0001..1.7, not-a-number counts as 1.0001), at least
 * 1 and at most 8, 4, 2 or 1 if a magnitude has bit 20, 21 or 22. The frames at *write_position are multiplied by a gain
 * that moves from the old to the new one in equal steps, and truncated; where a loud block follows, the first
 * products may not fit and then wrap; beyond 32 bits they count as -2^31. Both positions advance by count; the gains
 * are written back. A count below 1 returns 1. */
TESSARO_API int32_t TESSARO_CALL waveEffectMaximizer24(const WaveBuffer* buffer, int32_t* look_position,
                                                       int32_t* write_position, int32_t count, double growth,
                                                       double* left_gain, double* right_gain);

/* The same at the float scale from src to dst, both at *write_position. The states hold gain - 16, begin at -15 and
 * grow by step (limited to 0..9.9, not-a-number counts as 0) to between -15 and a limit from the peak of the frames
 * of src at *look_position: a gain of 16 below a peak of 0.06249, then 14, 12, 10, 8, 6, 4, 2, 1, 0.5, 0.25, 0.125, 0
 * from 0.06249, 0.07142, 0.08333, 0.09999, 0.1249, 0.1666, 0.249, 0.49, 0.99, 1.99, 3.99, 7.99. Results are
 * clamped. A count below 1 returns 1. */
TESSARO_API int32_t TESSARO_CALL waveEffectMaximizer64(const WaveBuffer* dst, const WaveBuffer* src,
                                                       int32_t* look_position, int32_t* write_position,
                                                       int32_t count, double step, double* left_state,
                                                       double* right_state);

/* Multiplies by target / 0.01 at the float scale, clamped; the target is limited to 0..1, not-a-number counts as 0.
 * Despite the name the material's level plays no part. */
TESSARO_API int32_t TESSARO_CALL waveNormal(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                            int32_t src_start, int32_t count, float target);

/* Adds echoes to count frames from *frame_position on, in place, at the float scale. Calls that pass on the ring and both
 * positions make one continuous reverb.
 *
 *   ring        a 64-bit buffer of at least 524288 frames, whatever its channels used as 524288 frames of two
 *               doubles (8 MiB), cleared by the host before the first call
 *   ring_position   0..524287, advanced by count modulo 524288; other values are taken modulo 524288
 *   level       0..99.99; not-a-number counts as 0
 *   predelay    frames to the first tap, 10..88200
 *   spread      multiplies the distances of the taps, 1..44100
 *   taps        1..10000
 *   tap_table   30000 doubles: 10000 left gains, 10000 right gains, 10000 distances to the next tap in frames
 * level to taps are limited to these ranges.
 *
 * For every frame: ring frame (position + 199) * 0.005 is added to the frame, the ring frame at the position is
 * cleared, and (left + right) * level / 2 times the gains of each tap is added to the ring, split between the two
 * frames nearest to position + predelay + the distances before the tap. An echo is heard 199 frames before its delay
 * is over, and one of less than 200 frames never.
 *
 * Returns 1 and changes nothing for a count below 1, a buffer of 0 frames, or a ring of fewer frames or other bits. */
TESSARO_API int32_t TESSARO_CALL waveEffectReverbA1(const WaveBuffer* buffer, int32_t* frame_position,
                                                    const WaveBuffer* ring, int32_t* ring_position,
                                                    int32_t count, double level, int32_t predelay,
                                                    int32_t spread, int32_t taps, const double* tap_table);

/* ---- Spectrum */

/* The discrete Fourier transform of n frames from start on, left and right added: bin k is re[k] + i im[k], k =
 * 0..n - 1, with positive exponents and not normalised. n is meant to be a power of two; others run through the same
 * steps to no useful result. re and im are arrays of n doubles that share no memory with the buffer. Returns 1 for an
 * invalid format, 2 for n below 1 or a negative start, 3 when the run leaves the buffer, the arrays untouched; 0
 * otherwise. */
TESSARO_API int32_t TESSARO_CALL wavefft(const WaveBuffer* buffer, int32_t start, int32_t n, double* re,
                                         double* im);

/* The same; then re[k] becomes the magnitude and im[k] the angle atan2(re[k], im[k]), in radians from the imaginary
 * axis. The arrays are converted whatever the result: what they hold must be defined. */
TESSARO_API int32_t TESSARO_CALL wavefft2(const WaveBuffer* buffer, int32_t start, int32_t n, double* re,
                                          double* im);

#ifdef __cplusplus
}
#endif

#endif
