// Waveforms: the bundled voice, or the user's, through the blits, resampling and the effects.
#include <algorithm>
#include <cmath>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Sound;

// A wave buffer over a sound's samples.
WaveBuffer record_of(Sound& sound) {
  return {waveFormatEnc(16, sound.channels, sound.rate),
          static_cast<int32_t>(sound.samples.size() / static_cast<size_t>(sound.channels)),
          sound.samples.data()};
}

int32_t frames_of(const Sound& sound) {
  return static_cast<int32_t>(sound.samples.size() / static_cast<size_t>(sound.channels));
}

Sound silence(const Sound& like, int32_t frames, int channels) {
  Sound sound;
  sound.rate = like.rate;
  sound.channels = channels;
  sound.samples.assign(static_cast<size_t>(frames) * static_cast<size_t>(channels), 0);
  return sound;
}

// Shows what call makes of (destination, source), both the voice at first.
void play(Gallery& gallery, const Sound& voice, const char* title, const char* code, const char* notice,
          const std::function<void(const WaveBuffer*, const WaveBuffer*, int32_t)>& call) {
  Sound from = voice, to = voice;
  const WaveBuffer src = record_of(from), dst = record_of(to);
  gallery.play(title, code, notice, to, [&] { call(&dst, &src, dst.count); });
}

void show_blits(Gallery& gallery) {
  const Sound& voice = gallery.voice();
  gallery.heading(
      "Waveforms: blits",
      "Every call reads frames of one buffer and writes or mixes them into another, in any pair of "
      "formats; here both are 16-bit.");
  play(gallery, voice, "The voice", "waveBlt(dst, src, 0, 0, frames, 1.0f);", "A copy, bit for bit.",
       [](auto d, auto s, int32_t n) { waveBlt(d, s, 0, 0, n, 1.0f); });
  play(gallery, voice, "Gain", "waveBlt(dst, src, 0, 0, frames, 3.5f);",
       "Three and a half times louder: peaks saturate, as the flat tops of the plot show.",
       [](auto d, auto s, int32_t n) { waveBlt(d, s, 0, 0, n, 3.5f); });
  play(gallery, voice, "Moving average", "waveBltBlur(dst, src, 0, 0, frames, 12);",
       "The mean of 25 frames: consonants dull, as through a wall.",
       [](auto d, auto s, int32_t n) { waveBltBlur(d, s, 0, 0, n, 12); });
  play(gallery, voice, "Echo by mixing", "waveBltAdd(dst, src, rate / 4, 0, frames, 0.5f);",
       "The voice a second time, a quarter of a second later and half as loud. The frames past the end are "
       "dropped.",
       [&](auto d, auto s, int32_t n) { waveBltAdd(d, s, voice.rate / 4, 0, n, 0.5f); });
  {
    Sound tone = voice, to = voice;
    std::fill(tone.samples.begin(), tone.samples.end(), int16_t{0});
    const WaveBuffer src = record_of(tone), dst = record_of(to);
    waveBltSin(&src, &src, 0, 0, src.count, 1.0f, static_cast<float>(2 * 3.14159265 * 70 / voice.rate), 0, 0);
    gallery.play("Ring multiplication", "waveBltMul(voice, tone, 0, 0, frames, 1.0f);",
                 "The voice times the magnitude of a 70 Hz tone: a robot.", to,
                 [&] { waveBltMul(&dst, &src, 0, 0, dst.count, 1.0f); });
  }
  play(gallery, voice, "Noise", "waveBltAddNoise(dst, src, 0, 0, frames, 0.08f);",
       "White noise from the random generator, drawn for left and right apart.",
       [](auto d, auto s, int32_t n) { waveBltAddNoise(d, s, 0, 0, n, 0.08f); });
  play(gallery, voice, "A siren beside the voice",
       "waveBltSin(dst, src, 0, 0, frames, 0.15f, 0.08f, 0.000004f, 0.00012f);",
       "A sine whose pitch wanders by the integral of a slower sine.",
       [](auto d, auto s, int32_t n) { waveBltSin(d, s, 0, 0, n, 0.15f, 0.08f, 0.000004f, 0.00012f); });
  {
    Sound to = voice, from = voice;
    std::vector<uint8_t> coarse(from.samples.size());
    const WaveBuffer src = record_of(from), dst = record_of(to);
    const WaveBuffer eight = {waveFormatEnc(8, from.channels, from.rate), src.count, coarse.data()};
    gallery.play("Through 8 bits", "waveFormat(eight, src);\nwaveFormat(dst, eight);",
                 "256 levels: the hiss under quiet passages is what was rounded away.", to, [&] {
                   waveFormat(&eight, &src);
                   waveFormat(&dst, &eight);
                 });
  }
}

void show_effects(Gallery& gallery) {
  const Sound& voice = gallery.voice();
  gallery.heading(
      "Waveforms: resampling, dynamics, reverb",
      "The effects keep their state in the host's variables, so that sound can be streamed block by block.");
  for (const float ratio : {0.75f, 1.5f}) {
    Sound from = voice;
    Sound to =
        silence(voice, static_cast<int32_t>(static_cast<float>(frames_of(voice)) / ratio), voice.channels);
    const WaveBuffer src = record_of(from), dst = record_of(to);
    gallery.play(
        ratio < 1 ? "Slower and lower" : "Faster and higher",
        ratio < 1 ? "waveExpand(dst, src, 0.75f);" : "waveExpand(dst, src, 1.5f);",
        "Linear interpolation at a constant speed; the destination's length decides how much is produced.",
        to, [&] { waveExpand(&dst, &src, ratio); });
  }
  // A quiet voice, for the maximizers to raise.
  Sound quiet = voice;
  const WaveBuffer whisper = record_of(quiet);
  waveBlt(&whisper, &whisper, 0, 0, whisper.count, 0.15f);
  {
    Sound to = quiet;
    const WaveBuffer dst = record_of(to);
    gallery.play("Maximizer, 24-bit scale",
                 "waveEffectMaximizer24(dst, &look, &write, 2048, 1.05, &left, &right);",
                 "The voice at 15 %, raised block by block: gains grow by 5 % a block while what is ahead "
                 "stays quiet, and "
                 "fall when it does not.",
                 to, [&] {
                   int32_t look = 2048, write = 0;
                   double left = 1, right = 1;
                   while (write < dst.count)
                     waveEffectMaximizer24(&dst, &look, &write, 2048, 1.05, &left, &right);
                 });
  }
  {
    Sound to = quiet, from = quiet;
    const WaveBuffer dst = record_of(to), src = record_of(from);
    gallery.play(
        "Maximizer, float scale", "waveEffectMaximizer64(dst, src, &look, &write, 2048, 0.4, &left, &right);",
        "The same at the float scale: gains grow by 0.4 a block up to 16, by a table of peaks.", to, [&] {
          int32_t look = 2048, write = 0;
          double left = -15, right = -15;
          while (write < dst.count)
            waveEffectMaximizer64(&dst, &src, &look, &write, 2048, 0.4, &left, &right);
        });
  }
  play(
      gallery, quiet, "A fixed target", "waveNormal(dst, src, 0, 0, frames, 0.05f);",
      "The quiet voice five times louder: the target is a gain in hundredths, whatever the material's level.",
      [](auto d, auto s, int32_t n) { waveNormal(d, s, 0, 0, n, 0.05f); });
  {
    constexpr int taps = 600;
    std::vector<double> ring(2 * 524288), table(30000);
    uint32_t seed = 1;
    for (size_t t = 0; t < taps; ++t) {
      const auto random = [&] {
        seed = seed * 1664525 + 1013904223;
        return (seed >> 8) / 16777216.0;
      };
      const double fade = 9.0 * std::exp(-5.0 * static_cast<double>(t) / taps);
      table[t] = fade * (random() - 0.5);
      table[10000 + t] = fade * (random() - 0.5);
      table[20000 + t] = 20 + 180 * random();
    }
    Sound from = voice, to = silence(voice, frames_of(voice) + voice.rate, 2);
    const WaveBuffer src = record_of(from), dst = record_of(to);
    const WaveBuffer echoes = {waveFormatEnc(64, 2, 44100), 524288, ring.data()};
    waveFormat(&dst, &src);
    gallery.play(
        "Reverb", "waveEffectReverbA1(dst, &frame, ring, &position, 4096, 8.0, 1200, 1, 600, table);",
        "600 taps of random gain, other ones for left and right, fading over a second and a half; a second "
        "of "
        "silence lets the tail ring out. Plug in headphones.",
        to, [&] {
          int32_t frame = 0, position = 0;
          std::fill(ring.begin(), ring.end(), 0.0);  // what the run before left
          while (frame < dst.count)
            waveEffectReverbA1(&dst, &frame, &echoes, &position, 4096, 8.0, 1200, 1, taps, table.data());
        });
  }
}

void show_spectrum(Gallery& gallery) {
  Sound voice = gallery.voice();
  const WaveBuffer wave = record_of(voice);
  gallery.heading("Waveforms: spectrum", "The transform of 4096 frames from the loudest place of the voice.");
  constexpr int32_t n = 4096;
  if (wave.count < n) return;
  size_t loudest = 0;
  for (size_t i = 0; i < voice.samples.size(); ++i)
    if (std::abs(voice.samples[i]) > std::abs(voice.samples[loudest])) loudest = i;
  const auto channels = static_cast<size_t>(voice.channels);
  const int32_t start = std::clamp(static_cast<int32_t>(loudest / channels) - n / 2, 0, wave.count - n);
  // Without a window the ends of the block would leak into the notches.
  const auto levels = [&](const Sound& of) {
    Sound block = of;
    block.samples.erase(block.samples.begin(), block.samples.begin() + start * voice.channels);
    block.samples.resize(n * channels);
    for (size_t i = 0; i < block.samples.size(); ++i) {
      const double window = 0.5 - 0.5 * std::cos(2 * 3.14159265 * static_cast<double>(i / channels) / n);
      block.samples[i] = static_cast<int16_t>(std::lround(block.samples[i] * window));
    }
    std::vector<double> re(n), im(n);
    const WaveBuffer record = record_of(block);
    wavefft2(&record, 0, n, re.data(), im.data());
    re.resize(n / 8);
    for (double& magnitude : re) magnitude = 20 * std::log10(magnitude + 1e-3);
    return re;
  };
  Sound soft = voice;
  const WaveBuffer target = record_of(soft);
  waveBltBlur(&target, &wave, 0, 0, wave.count, 12);
  std::vector<double> plain = levels(voice), blurred = levels(soft);
  const double highest = *std::max_element(plain.begin(), plain.end());
  for (double& level : plain) level -= highest;
  for (double& level : blurred) level -= highest;
  gallery.plot(
      "wavefft2(block, 0, 4096, magnitude, angle);",
      "A Hann window lies over the block. The comb is the voice's pitch and its overtones; the second "
      "line, the moving average of 25 frames, falls to notches where a whole number of waves fits "
      "(dashed).",
      "bin k, at k * " + std::to_string(voice.rate) + " / 4096 Hz", "dB, 0 is the highest bin",
      {{"voice", plain}, {"after waveBltBlur", blurred}}, {n / 25.0, 2 * n / 25.0});
}

const gallery::Section blits(700, "waveform blits", show_blits);
const gallery::Section effects(710, "waveform effects", show_effects);
const gallery::Section spectrum(720, "spectrum", show_spectrum);

}  // namespace
