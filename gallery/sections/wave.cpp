// Waveforms: the voice, or the user's sound, sample by sample and through the blits, resampling and the effects.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "sections.hpp"

namespace gallery {

void show_samples(Gallery& page) {
  page.section("Waveforms: samples and formats",
               "Single frames of plain memory at each of the three scales, and buffers from one format into "
               "another. src is the voice; dst begins as silence.");
  const Sound& src = page.voice();
  const int n = src.frames(), channels = int(src.channels());
  Sound dst = src.silence();
  page.play("Backwards", dst, CALL(for (int i = 0; i < n; ++i) {
              int32_t left, right;
              GetWave(src.data(), n - 1 - i, TESSARO_BITS_16, channels, n, &left, &right);
              LetWave(dst.data(), i, TESSARO_BITS_16, channels, n, left, right);
            }),
            "At the 16-bit scale, frame by frame from the end.");
  const Sound fine = src.as(TESSARO_BITS_24, TESSARO_STEREO);
  Sound fading = fine.silence();
  page.play("Fading in, 24 bits", fading, CALL(for (int i = 0; i < n; ++i) {
              int32_t left, right;
              GetWave24(fine.data(), i, TESSARO_BITS_24, TESSARO_STEREO, n, &left, &right);
              const double level = double(i) / n;
              LetWave24(fading.data(), i, TESSARO_BITS_24, TESSARO_STEREO, n, int(left * level),
                        int(right * level));
            }),
            "At the 24-bit scale, from silence to full level.");
  const Sound exact = src.as(TESSARO_BITS_64, TESSARO_STEREO);
  Sound walking = exact.silence();
  page.play("Walking about, doubles", walking, CALL(for (int i = 0; i < n; ++i) {
              double left, right;
              GetWave64(exact.data(), i, TESSARO_BITS_64, TESSARO_STEREO, n, &left, &right);
              const double side = std::sin(i * 0.0001);
              LetWave64(walking.data(), i, TESSARO_BITS_64, TESSARO_STEREO, n, left * (0.5 - side / 2),
                        right * (0.5 + side / 2));
            }),
            "At the float scale: the voice goes from one side to the other.");
  Sound eight(TESSARO_BITS_8, channels, src.rate(), n);
  page.play("Through 8 bits", dst, CALL(waveFormat(eight, src); waveFormat(dst, eight)),
            "256 levels: the hiss under quiet passages is what was cut away.");
  page.play(
      "Through doubles and 24 bits", dst,
      CALL(waveBlt64(exact, src, 0, 0, n); waveBlt64(fine, exact, 0, 0, n); waveBlt64(dst, fine, 0, 0, n)),
      "At the float scale formats keep what they can hold, to within one unit.");
  Sound one(TESSARO_BITS_16, TESSARO_MONO, src.rate(), n);
  page.play(
      "A buffer by hand", one,
      CALL(WaveBuffer mono; mono.count = n; mono.data = one.data();
           mono.format = waveFormatEnc(TESSARO_BITS_16, TESSARO_MONO, src.rate()); waveFormat(&mono, src)),
      "Format code, frames and memory are the host's; left and right are folded to their mean.");
}

void show_wave_blits(Gallery& page) {
  page.section("Waveforms: blits",
               "Every call reads frames of one buffer and writes or mixes them into another, in any pair of "
               "formats; here both are 16-bit. src is the voice.");
  const Sound& src = page.voice();
  const int n = src.frames(), rate = src.rate();
  Sound dst = src.silence(), mixed = src;
  page.play("The voice", dst, CALL(waveBlt(dst, src, 0, 0, n, 1)), "A copy, bit for bit.");
  page.play("Gain", dst, CALL(waveBlt(dst, src, 0, 0, n, 3.5f)),
            "Three and a half times louder: peaks saturate, as the flat tops of the plot show.");
  page.play("Moving average", dst, CALL(waveBltBlur(dst, src, 0, 0, n, 12)),
            "The mean of 25 frames: consonants dull, as through a wall.");
  page.play(
      "Echo by mixing", mixed, CALL(waveBltAdd(mixed, src, rate / 4, 0, n, 0.5f)),
      "The voice a second time, a quarter of a second later and half as loud. The frames past the end are "
      "dropped.");
  page.play("A comb by subtracting", mixed, CALL(waveBltSub(mixed, src, rate / 500, 0, n, 0.9f)),
            "The voice less itself two milliseconds later: tones that fit that time are gone, as in a tin.");
  Sound tone = src.silence();
  page.play(
      "A tone", tone,
      CALL(waveBltSin(tone, tone, 0, 0, n, 0.8f, 2 * float(std::numbers::pi) * 220 / float(rate), 0, 0)),
      "220 Hz onto silence; frequencies are radians a frame.");
  waveBltSin(tone, tone, 0, 0, n, 1, 2 * float(std::numbers::pi) * 70 / float(rate), 0, 0);
  page.play("Ring multiplication", mixed, CALL(waveBltMul(mixed, tone, 0, 0, n, 1)),
            "The voice times the magnitude of a 70 Hz tone: a robot.");
  page.play("A siren beside the voice", dst,
            CALL(waveBltSin(dst, src, 0, 0, n, 0.15f, 0.08f, 0.000004f, 0.00012f)),
            "A sine whose pitch wanders by the integral of a slower sine.");
  page.play("Noise", dst, CALL(waveBltAddNoise(dst, src, 0, 0, n, 0.08f)),
            "White noise from the random generator, drawn for left and right apart.");
  page.play(
      "Exclusive-or", mixed, CALL(waveBltGluder(mixed, src, 0, 0, n, 3)),
      "The voice against itself three frames later, bit by bit: a rattle, with peaks where signs differ.");
  page.play("… and back", dst,
            CALL(waveBlt(dst, src, 0, 0, n, 1); waveBltGluder(dst, src, 0, 0, n, 3);
                 waveBltGluder(dst, src, 0, 0, n, 3)),
            "Between 16-bit buffers the same call a second time undoes it.");
  page.play("Parts silenced", mixed,
            CALL(for (int i = 0; i < n; i += rate / 4) { waveClear64(mixed, i, rate / 8); }),
            "An eighth of a second out of every quarter.");
}

void show_effects(Gallery& page) {
  page.section(
      "Waveforms: resampling, dynamics, reverb",
      "The effects keep their state in the host's variables, so that sound can be streamed block by block.");
  const Sound& src = page.voice();
  const int n = src.frames(), channels = int(src.channels());
  Sound slow(TESSARO_BITS_16, channels, src.rate(), n * 4 / 3),
      fast(TESSARO_BITS_16, channels, src.rate(), n * 2 / 3);
  page.play(
      "Slower and lower", slow, CALL(waveExpand(slow, src, 0.75f)),
      "Linear interpolation at a constant speed; the destination's length decides how much is produced.");
  page.play("Faster and higher", fast, CALL(waveExpand(fast, src, 1.5f)), "One and a half times the speed.");

  Sound quiet = src, dst = src.silence();
  waveBlt(quiet, src, 0, 0, n, 0.15f);
  page.play(
      "Maximizer, 24-bit scale", quiet,
      CALL(int32_t look = 2048, place = 0; double left = 1, right = 1;
           while (place < n &&
                  waveEffectMaximizer24(quiet, &look, &place, 2048, 1.05, &left, &right) == 0) continue),
      "The voice at 15 %, raised block by block: gains grow by 5 % a block while what is ahead stays quiet, "
      "and fall when it does not.");
  page.play("Maximizer, float scale", dst,
            CALL(int32_t look = 2048, place = 0; double left = -15, right = -15;
                 while (place < n && waveEffectMaximizer64(dst, quiet, &look, &place, 2048, 0.4, &left,
                                                           &right) == 0) continue),
            "The same at the float scale: gains grow by 0.4 a block up to 16, by a table of peaks.");
  page.play("A fixed target", dst, CALL(waveNormal(dst, quiet, 0, 0, n, 0.05f)),
            "The quiet voice five times louder: the target is a gain in hundredths, whatever the material's "
            "level.");

  constexpr int taps = 600;
  std::vector<double> table(3 * TESSARO_REVERB_TAPS);
  uint32_t seed = 1;
  const auto random = [&] {
    seed = seed * 1664525 + 1013904223;
    return (seed >> 8) / 16777216.0;
  };
  for (size_t t = 0; t < taps; ++t) {
    const double fade = 9.0 * std::exp(-5.0 * static_cast<double>(t) / taps);
    table[t] = fade * (random() - 0.5);
    table[TESSARO_REVERB_TAPS + t] = fade * (random() - 0.5);
    table[2 * TESSARO_REVERB_TAPS + t] = 20 + 180 * random();
  }
  const Sound ring(TESSARO_BITS_64, TESSARO_STEREO, src.rate(), TESSARO_REVERB_RING_FRAMES);
  Sound hall(TESSARO_BITS_16, TESSARO_STEREO, src.rate(), n + src.rate());
  waveFormat(hall, src);
  page.play(
      "Reverb", hall,
      CALL(int32_t frame = 0, place = 0; waveClear64(ring, 0, TESSARO_REVERB_RING_FRAMES);
           while (frame < hall.frames() && waveEffectReverbA1(hall, &frame, ring, &place, 4096, 8, 1200, 1,
                                                              taps, table.data()) == 0) continue),
      "600 taps of random gain, other ones for left and right, fading over a second and a half; a second of "
      "silence lets the tail ring out. Plug in headphones.");
}

void show_spectrum(Gallery& page) {
  page.section("Waveforms: spectrum", "The transform of 4096 frames from the loudest place of the voice.");
  constexpr int n = 4096;
  const Sound& voice = page.voice();
  Sound dull = voice;
  waveBltBlur(dull, voice, 0, 0, voice.frames(), 12);
  int loudest = 0, level = 0;
  for (int i = 0; i < voice.frames(); ++i) {
    int32_t left, right;
    GetWave(voice.data(), i, TESSARO_BITS_16, int(voice.channels()), voice.frames(), &left, &right);
    if (std::abs(left) > level) level = std::abs(left), loudest = i;
  }
  const int start = std::clamp(loudest - n / 2, 0, voice.frames() - n);
  // Without a window the ends of the block would leak everywhere.
  const auto windowed = [&](const Sound& of) {
    Sound block(TESSARO_BITS_64, TESSARO_MONO, of.rate(), n);
    waveBlt64(block, of, 0, start, n);
    for (int i = 0; i < n; ++i)
      static_cast<double*>(block.data())[i] *= 0.5 - 0.5 * std::cos(2 * std::numbers::pi * i / n);
    return block;
  };
  const Sound block = windowed(voice), blurred = windowed(dull);
  std::vector<double> re(n), im(n), magnitude(n), angle(n), dulled(n);
  const std::string bins = "bin k, at k * " + std::to_string(voice.rate()) + " / 4096 Hz";
  const auto first_bins = [](const std::vector<double>& all, int count) {
    return std::vector<double>(all.begin(), all.begin() + count);
  };
  page.plot(
      "Real and imaginary parts",
      [&] {
        return Plot{bins, "", {{"real", first_bins(re, 256)}, {"imaginary", first_bins(im, 256)}}, {}};
      },
      CALL(wavefft(block, 0, n, re.data(), im.data())),
      "A Hann window lies over the block. Each overtone of the voice is a group of bins, whose signs tell "
      "its "
      "phase.");
  const auto decibels = [&](std::vector<double> levels) {
    const double highest = *std::max_element(magnitude.begin(), magnitude.end());
    for (double& v : levels) v = 20 * std::log10((v + 1e-6) / highest);
    return first_bins(levels, n / 8);
  };
  page.plot(
      "Magnitude",
      [&] {
        return Plot{bins,
                    "dB, 0 is the highest bin",
                    {{"voice", decibels(magnitude)}, {"after waveBltBlur", decibels(dulled)}},
                    {n / 25.0, 2 * n / 25.0}};
      },
      CALL(wavefft2(block, 0, n, magnitude.data(), angle.data());
           wavefft2(blurred, 0, n, dulled.data(), angle.data())),
      "The comb is the voice's pitch and its overtones; the second line, the moving average of 25 frames, "
      "falls to notches where a whole number of waves fits (dashed).");
  page.plot(
      "Angle",
      [&] {
        return Plot{bins, "radians", {{"voice", first_bins(angle, 128)}}, {}};
      },
      CALL(wavefft2(block, 0, n, magnitude.data(), angle.data())),
      "From the imaginary axis: neighbouring bins of an overtone differ by half a turn, since the window is "
      "centred.");
}

}  // namespace gallery
