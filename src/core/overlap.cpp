// Whether two areas of images share memory, row by row where their spans alone do not tell.
#include "core/overlap.hpp"

namespace tessaro {

bool share_memory(const Area& a, const Area& b) {
  struct Span {
    uintptr_t first, end;
  };
  const auto span_of = [](const Area& n) -> Span {
    const auto start = reinterpret_cast<uintptr_t>(n.at);
    const uintptr_t last = start + static_cast<uintptr_t>(n.pitch * (n.height - 1));
    const uintptr_t row = 4 * static_cast<uintptr_t>(n.width);
    return n.pitch < 0 ? Span{last, start + row} : Span{start, last + row};
  };
  const Span m = span_of(a), n = span_of(b);
  if (m.end <= n.first || n.end <= m.first) return false;
  if (a.pitch != b.pitch || a.pitch == 0) return true;
  // Rows of one pitch: a starts so many bytes behind the start of the row of b before it.
  const auto pitch = static_cast<uintptr_t>(a.pitch < 0 ? -a.pitch : a.pitch);
  const uintptr_t ahead =
      m.first >= n.first ? (m.first - n.first) % pitch : pitch - 1 - (n.first - m.first - 1) % pitch;
  return ahead < 4 * static_cast<uintptr_t>(b.width) || ahead + 4 * static_cast<uintptr_t>(a.width) > pitch;
}

}  // namespace tessaro
