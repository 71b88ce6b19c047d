// The sections of the page, in their order.
#pragma once

#include "gallery.hpp"

namespace gallery {

void show_blits(Gallery&);
void show_sprites(Gallery&);
void show_colours(Gallery&);
void show_formats(Gallery&);
void show_turns(Gallery&);
void show_keys(Gallery&);
void show_comparisons(Gallery&);
void show_fills(Gallery&);
void show_tone(Gallery&);
void show_levels(Gallery&);
void show_stretching(Gallery&);
void show_stretched_sprites(Gallery&);
void show_flips(Gallery&);
void show_blurs(Gallery&);
void show_reduction(Gallery&);
void show_region_paint(Gallery&);
void show_drawing(Gallery&);
void show_maps(Gallery&);
void show_stencils(Gallery&);
void show_picture_files(Gallery&);
void show_transforms(Gallery&);
void show_streams(Gallery&);
void show_samples(Gallery&);
void show_wave_blits(Gallery&);
void show_effects(Gallery&);
void show_spectrum(Gallery&);

inline constexpr void (*sections[])(Gallery&) = {
    show_blits,        show_sprites,           show_colours, show_formats,    show_turns,
    show_keys,         show_comparisons,       show_fills,   show_tone,       show_levels,
    show_stretching,   show_stretched_sprites, show_flips,   show_blurs,      show_reduction,
    show_region_paint, show_drawing,           show_maps,    show_stencils,   show_picture_files,
    show_transforms,   show_streams,           show_samples, show_wave_blits, show_effects,
    show_spectrum};

}  // namespace gallery
