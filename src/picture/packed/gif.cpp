// GIF files through giflib: the first image on its screen.
#include <cstring>
//
#include <gif_lib.h>

#include "core/heap.hpp"
#include "picture/packed/packed.hpp"

namespace tessaro::platform {
namespace {

struct GifSource {
  const PictureFile* file;
  size_t at;
};
int gif_take(GifFileType* gif, GifByteType* to, int count) {
  auto* source = static_cast<GifSource*>(gif->UserData);
  const size_t rest = source->file->size - source->at;
  const size_t taken = static_cast<size_t>(count) < rest ? static_cast<size_t>(count) : rest;
  std::memcpy(to, source->file->bytes + source->at, taken);
  source->at += taken;
  return static_cast<int>(taken);
}

// Goes on to the first image; the transparent index of the extension before it, or NO_TRANSPARENT_COLOR.
bool gif_find_image(GifFileType* gif, int& transparent) {
  for (;;) {
    GifRecordType type = UNDEFINED_RECORD_TYPE;
    if (DGifGetRecordType(gif, &type) == GIF_ERROR) return false;
    if (type == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(gif) != GIF_ERROR;
    if (type != EXTENSION_RECORD_TYPE) return false;
    int code = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(gif, &code, &block) == GIF_ERROR) return false;
    GraphicsControlBlock control{};
    if (block && code == GRAPHICS_EXT_FUNC_CODE &&
        DGifExtensionToGCB(block[0], block + 1, &control) != GIF_ERROR)
      transparent = control.TransparentColor;
    while (block)
      if (DGifGetExtensionNext(gif, &block) == GIF_ERROR) return false;
  }
}

void gif_read_image(GifFileType* gif, Canvas& canvas) {
  int transparent = NO_TRANSPARENT_COLOR;
  if (!gif_find_image(gif, transparent)) return;
  const GifImageDesc& image = gif->Image;
  const ColorMapObject* map = image.ColorMap ? image.ColorMap : gif->SColorMap;
  if (!map || !Canvas::fits(image.Width, image.Height) || !canvas.open(gif->SWidth, gif->SHeight)) return;

  uint32_t palette[256] = {};
  const uint32_t opaque = transparent == NO_TRANSPARENT_COLOR ? 0 : 0xFF000000;
  for (int i = 0; i < map->ColorCount && i < 256; ++i) {
    const GifColorType& c = map->Colors[i];
    palette[i] = opaque | static_cast<uint32_t>(c.Red << 16 | c.Green << 8 | c.Blue);
  }
  if (transparent >= 0 && transparent < 256) palette[transparent] &= 0xFFFFFF;

  const int32_t right = image.Left + image.Width < canvas.width ? image.Width : canvas.width - image.Left;
  HeapArray<GifByteType> line(static_cast<size_t>(image.Width));
  if (!line) return;
  constexpr int first[] = {0, 4, 2, 1}, step[] = {8, 8, 4, 2};
  for (int pass = 0; pass < (image.Interlace ? 4 : 1); ++pass)
    for (int32_t y = image.Interlace ? first[pass] : 0; y < image.Height;
         y += image.Interlace ? step[pass] : 1) {
      if (DGifGetLine(gif, line.data(), image.Width) == GIF_ERROR) return;
      const int32_t at = image.Top + y;
      if (at < canvas.rows)
        for (int32_t x = 0; x < right; ++x) canvas.row(at)[image.Left + x] = palette[line.data()[x]];
      else if (!image.Interlace)
        break;
      if (!image.Interlace) canvas.last = at + 1;
    }
  canvas.last = canvas.rows;
}

}  // namespace

void read_gif(const PictureFile& file, Canvas& canvas) {
  GifSource source{&file, 0};
  GifFileType* gif = DGifOpen(&source, gif_take, nullptr);
  if (!gif) return;
  gif_read_image(gif, canvas);
  DGifCloseFile(gif, nullptr);
}

}  // namespace tessaro::platform
