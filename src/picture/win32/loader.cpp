// Pictures through the OLE picture loader.
#include "picture/loader.hpp"

#include <windows.h>
//
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include <cstring>

namespace tessaro::platform {
namespace {

// Loads the file and hands the picture to `use` if it is a bitmap. False when there is no memory.
template <class Use>
bool with_bitmap(const uint8_t* file, size_t size, Use use) {
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
  // Hosts rely on the exact failure value: a null block goes on, and loads nothing.
  if (reinterpret_cast<INT_PTR>(block) == -1) return false;
  if (void* bytes = GlobalLock(block)) {
    std::memcpy(bytes, file, size);
    GlobalUnlock(block);
  }
  IStream* stream = nullptr;
  CreateStreamOnHGlobal(block, TRUE, &stream);
  if (!stream) {
    GlobalFree(block);
    return true;
  }
  IPicture* picture = nullptr;
  OleLoadPicture(stream, static_cast<LONG>(size), TRUE, IID_IPicture, reinterpret_cast<void**>(&picture));
  if (picture) {
    SHORT type = 0;
    picture->get_Type(&type);
    if (type == PICTYPE_BITMAP) use(*picture);
    picture->Release();
  }
  // The stream gives the block back. It must not be freed once more: another thread may have been given the
  // same handle by then.
  stream->Release();
  return true;
}

PictureExtent extent_of(IPicture& picture) {
  OLE_XSIZE_HIMETRIC width = 0;
  OLE_YSIZE_HIMETRIC height = 0;
  picture.get_Height(&height);
  picture.get_Width(&width);
  return {static_cast<int32_t>(width), static_cast<int32_t>(height)};
}

}  // namespace

bool picture_extent(const uint8_t* file, size_t size, PictureExtent& extent) {
  return with_bitmap(file, size, [&](IPicture& picture) { extent = extent_of(picture); });
}

bool draw_picture(void* device, const uint8_t* file, size_t size) {
  return with_bitmap(file, size, [&](IPicture& picture) {
    OLE_HANDLE handle = 0;  // 32 bits wide on every target; handles are sign-extended
    picture.get_Handle(&handle);
    const HDC target = static_cast<HDC>(device), memory = CreateCompatibleDC(target);
    SelectObject(memory, reinterpret_cast<HGDIOBJ>(static_cast<LONG_PTR>(static_cast<LONG>(handle))));
    const PictureExtent extent = extent_of(picture);
    BitBlt(target, 0, 0, extent.height, extent.width, memory, 0, 0, SRCCOPY);
    DeleteDC(memory);
  });
}

}  // namespace tessaro::platform
