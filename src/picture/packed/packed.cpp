// Which reader a packed picture file is for.
#include "picture/packed/packed.hpp"

using namespace tessaro::platform;

void tessaro_read_packed_1(const PictureFile& file, Canvas& canvas) {
  if (file.starts_with("\xFF\xD8\xFF", 3))
    read_jpeg(file, canvas);
  else if (file.starts_with("\x89PNG\r\n\x1A\n", 8))
    read_png(file, canvas);
  else if (file.starts_with("GIF8", 4))
    read_gif(file, canvas);
}
