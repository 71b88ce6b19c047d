// Clean-up and colouring of key-coloured areas: eleven operations behind one export.
#include <array>
#include <cstring>

#include "core/heap.hpp"
#include "core/image.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// Runs f(pixel) over the whole image; f returns the new pixel.
template <class F>
void recolour(const ImageView& image, F f) {
  for (int32_t y = 0; y < image.height; ++y) {
    uint8_t* row = image.at(0, y);
    for (ptrdiff_t x = 0; x < image.width; ++x) store(row + 4 * x, f(load<uint32_t>(row + 4 * x)));
  }
}

// ---- Outlines ---------------------------------------------------------------------------------------------

// Every pixel is classified by its original neighbours: inside (not key) or outside (key), on an edge between
// the two or not. The image's border is no edge.
struct Outline {
  bool paints_plain, paints_inner, paints_outer;  // which classes change
  uint32_t plain, inner, outer;  // non-key pixels, those of them on an edge, key pixels on an edge
};

bool outline(const ImageView& image, uint32_t key, const Outline& paint) {
  const auto width = static_cast<size_t>(image.width);
  HeapArray<uint8_t> flags(3 * width);  // is it key: the row above, this one, the one below
  if (!flags) return false;
  uint8_t *above = flags.data(), *here = above + width, *below = here + width;
  const auto classify = [&](int32_t y, uint8_t* row) {
    for (size_t x = 0; x < width; ++x) row[x] = image.get(static_cast<int64_t>(x), y) == key;
  };
  classify(0, here);
  std::memcpy(above, here, width);
  for (int32_t y = 0; y < image.height; ++y) {
    if (y + 1 < image.height)
      classify(y + 1, below);
    else
      std::memcpy(below, here, width);
    uint8_t* row = image.at(0, y);
    for (size_t x = 0; x < width; ++x) {
      const uint8_t is_key = here[x];
      const uint8_t left = here[x > 0 ? x - 1 : x], right = here[x + 1 < width ? x + 1 : x];
      const bool edge = is_key != left || is_key != right || is_key != above[x] || is_key != below[x];
      if (is_key) {
        if (edge && paint.paints_outer) store(row + 4 * x, paint.outer);
      } else if (edge && paint.paints_inner) {
        store(row + 4 * x, paint.inner);
      } else if (paint.paints_plain) {
        store(row + 4 * x, paint.plain);
      }
    }
    uint8_t* free = above;
    above = here;
    here = below;
    below = free;
  }
  return true;
}

// ---- Small regions ----------------------------------------------------------------------------------------

// Regions as sets of runs: the runs of neighbouring rows that touch are united, the size stands at the root.
struct Run {
  int16_t y, first, end;
  uint32_t parent, size;
};

uint32_t root_of(Run* runs, uint32_t i) {
  while (runs[i].parent != i) i = runs[i].parent = runs[runs[i].parent].parent;
  return i;
}

void unite(Run* runs, uint32_t a, uint32_t b) {
  a = root_of(runs, a);
  b = root_of(runs, b);
  if (a == b) return;
  if (runs[a].size < runs[b].size) {
    const uint32_t other = a;
    a = b;
    b = other;
  }
  runs[b].parent = a;
  runs[a].size += runs[b].size;
}

template <class F>
void each_run(const ImageView& image, uint32_t key, F f) {
  for (int32_t y = 0; y < image.height; ++y) {
    const uint8_t* row = image.at(0, y);
    for (int32_t x = 0; x < image.width; ++x) {
      if (load<uint32_t>(row + 4 * static_cast<ptrdiff_t>(x)) != key) continue;
      const int32_t first = x;
      while (x < image.width && load<uint32_t>(row + 4 * static_cast<ptrdiff_t>(x)) == key) ++x;
      f(y, first, x);
    }
  }
}

int32_t remove_small_regions(const ImageView& image, uint32_t colour, uint32_t key, int32_t limit) {
  size_t count = 0;
  each_run(image, key, [&](int32_t, int32_t, int32_t) { ++count; });
  HeapArray<Run> memory(count);
  if (!memory) return 0;
  Run* runs = memory.data();
  uint32_t made = 0, above = 0, above_end = 0;  // the runs of the row above that may still touch
  int32_t row = -1;
  uint32_t row_start = 0;
  each_run(image, key, [&](int32_t y, int32_t first, int32_t end) {
    if (y != row) {
      above = y == row + 1 ? row_start : made;
      above_end = row_start = made;
      row = y;
    }
    runs[made] = {static_cast<int16_t>(y), static_cast<int16_t>(first), static_cast<int16_t>(end), made,
                  static_cast<uint32_t>(end - first)};
    while (above < above_end && runs[above].end <= first) ++above;
    for (uint32_t i = above; i < above_end && runs[i].first < end; ++i) unite(runs, i, made);
    ++made;
  });
  int32_t painted = 0;
  for (uint32_t i = 0; i < made; ++i) {
    const uint32_t root = root_of(runs, i);
    if (int64_t{runs[root].size} > limit) continue;
    painted += root == i;
    for (int32_t x = runs[i].first; x < runs[i].end; ++x) image.set(x, runs[i].y, colour);
  }
  return painted;
}

// ---- Filling from neighbours ------------------------------------------------------------------------------

// Left, right, above, below.
struct Neighbours {
  std::array<uint32_t, 4> colour;
  std::array<uint32_t, 4> votes;  // 1 where the neighbour counts, else 0
};

template <class Counts>  // counts(x, y, colour)
Neighbours neighbours_of(const ImageView& image, int32_t x, int32_t y, Counts counts) {
  constexpr int32_t step_x[] = {-1, 1, 0, 0}, step_y[] = {0, 0, -1, 1};
  Neighbours n{};
  for (size_t i = 0; i < 4; ++i) {
    const int32_t nx = x + step_x[i], ny = y + step_y[i];
    if (!image.contains(nx, ny)) continue;
    n.colour[i] = image.get(nx, ny);
    n.votes[i] = counts(nx, ny, n.colour[i]);
  }
  return n;
}

// The colour with most votes, the earlier one on a tie; false when nobody votes. Equal colours pool their
// votes with the earlier one, pair by pair.
bool majority(Neighbours n, uint32_t& winner) {
  for (size_t i = 0; i < 3; ++i)
    for (size_t j = i + 1; j < 4; ++j)
      if (n.votes[i] && n.votes[j] && n.colour[i] == n.colour[j]) n.votes[i] += n.votes[j];
  size_t best = 0;
  for (size_t i = 1; i < 4; ++i)
    if (n.votes[i] > n.votes[best]) best = i;
  winner = n.colour[best];
  return n.votes[best] != 0;
}

// The mean of the neighbours that count, by multiplication with a rounded reciprocal.
bool average(const Neighbours& n, uint32_t& mean) {
  constexpr uint32_t multiplier[] = {0, 256, 128, 85, 64}, bias[] = {0, 0, 0, 3, 2};
  const uint32_t count = n.votes[0] + n.votes[1] + n.votes[2] + n.votes[3];
  mean = 0;
  for (int shift = 0; shift < 32; shift += 8) {
    uint32_t sum = bias[count];
    for (size_t i = 0; i < 4; ++i) sum += n.votes[i] * (n.colour[i] >> shift & 255);
    mean |= (sum * multiplier[count] >> 8) << shift;
  }
  return count != 0;
}

// Even rows before odd ones, and in each even columns before odd ones: pixels of one phase are never
// neighbours.
constexpr int phases = 4;
int phase_of(int32_t x, int32_t y) { return 2 * (y & 1) + (x & 1); }

// One pass over the key pixels; pixels filled in one phase count in the next ones. Returns how many stayed.
template <class Choose>
int32_t fill_key(const ImageView& image, uint32_t excluded, uint32_t key, Choose choose) {
  int32_t unfilled = 0;
  for (int phase = 0; phase < phases; ++phase)
    for (int32_t y = phase >> 1; y < image.height; y += 2)
      for (int32_t x = phase & 1; x < image.width; x += 2) {
        if (image.get(x, y) != key) continue;
        uint32_t colour;
        const auto counts = [&](int32_t, int32_t, uint32_t c) { return c != key && c != excluded; };
        if (choose(neighbours_of(image, x, y, counts), colour))
          image.set(x, y, colour);
        else
          ++unfilled;
      }
  return unfilled;
}

bool is_grey(uint32_t c) { return (c & 255) == (c >> 8 & 255) && (c & 255) == (c >> 16 & 255); }

// Passes over the marked pixels until one changes nothing. A marked pixel is filled when its turn comes after
// a neighbour was unmarked, so only such pixels wait in a queue, one queue a phase, and the passes together
// cost time in proportion to the image, however far the colour has to creep.
int32_t fill_grey(const ImageView& image, uint32_t lowest, uint32_t highest) {
  enum : uint8_t { unmarked, marked, fillable, queued };
  const auto width = static_cast<size_t>(image.width), size = width * static_cast<size_t>(image.height);
  HeapArray<uint8_t> marks(size);
  if (!marks) return 0;
  size_t in_phase[phases] = {};
  const auto each = [&](auto f) {
    for (int32_t y = 0; y < image.height; ++y)
      for (int32_t x = 0; x < image.width; ++x)
        f(x, y, marks[static_cast<size_t>(y) * width + static_cast<size_t>(x)]);
  };
  each([&](int32_t x, int32_t y, uint8_t& mark) {
    const uint32_t c = image.get(x, y);
    const bool in_range = (c & 255) >= lowest && (c & 255) <= highest;
    mark = !is_grey(c) ? unmarked : in_range ? fillable : marked;
    if (mark == fillable) ++in_phase[phase_of(x, y)];
  });
  size_t left = in_phase[0] + in_phase[1] + in_phase[2] + in_phase[3];
  struct Position {
    int16_t x, y;
  };
  HeapArray<Position> queues(left);
  if (!queues) return 0;
  Position* queue[phases];
  size_t taken[phases] = {}, put[phases] = {};
  for (size_t i = 0, start = 0; i < phases; start += in_phase[i++]) queue[i] = queues.data() + start;
  const auto offer = [&](int32_t x, int32_t y) {
    if (!image.contains(x, y)) return;
    uint8_t& mark = marks[static_cast<size_t>(y) * width + static_cast<size_t>(x)];
    if (mark != fillable) return;
    mark = queued;
    const int phase = phase_of(x, y);
    queue[phase][put[phase]++] = {static_cast<int16_t>(x), static_cast<int16_t>(y)};
  };
  const auto offer_neighbours = [&](int32_t x, int32_t y) {
    offer(x - 1, y);
    offer(x + 1, y);
    offer(x, y - 1);
    offer(x, y + 1);
  };
  each([&](int32_t x, int32_t y, const uint8_t& mark) {
    if (mark == unmarked) offer_neighbours(x, y);
  });
  for (size_t before = left + 1; left != 0 && left != before;) {
    before = left;
    for (int phase = 0; phase < phases; ++phase)
      for (; taken[phase] < put[phase]; ++taken[phase], --left) {
        const Position at = queue[phase][taken[phase]];
        uint32_t colour = 0;
        majority(neighbours_of(image, at.x, at.y,
                               [&](int32_t x, int32_t y, uint32_t) {
                                 return marks[static_cast<size_t>(y) * width + static_cast<size_t>(x)] ==
                                        unmarked;
                               }),
                 colour);
        image.set(at.x, at.y, colour);
        marks[static_cast<size_t>(at.y) * width + static_cast<size_t>(at.x)] = unmarked;
        offer_neighbours(at.x, at.y);
      }
  }
  return static_cast<int32_t>(left);
}

int32_t paint_non_grey(const ImageView& image, uint32_t colour) {
  int32_t changed = 0;
  recolour(image, [&](uint32_t c) {
    const bool grey = is_grey(c);
    changed += !grey;
    return grey ? c : colour;
  });
  return changed;
}

}  // namespace

extern "C" int32_t TESSARO_CALL BBIPaintChoose(ImageRecord* record, uint32_t op, uint32_t colour,
                                               uint32_t key, uint32_t x, uint32_t y) {
  const ImageView image = ImageView::of(record);
  if (image.width < 1 || image.height < 1) return 0;
  switch (op) {
    case 0:
      recolour(image, [=](uint32_t c) { return c == key ? colour : c; });
      return 0;
    case 1:
      recolour(image, [=](uint32_t c) { return c != key ? colour : c; });
      return 0;
    case 2:
      outline(image, key, {true, true, true, colour, x, y});
      return 0;
    case 3:
      outline(image, key, {false, false, true, 0, 0, colour});
      return 0;
    case 4:
      outline(image, key, {false, true, false, 0, colour, 0});
      return 0;
    case 5:
      return remove_small_regions(image, colour, key, static_cast<int32_t>(x));
    case 6:
      return fill_key(image, colour, key, majority);
    case 7:
      return fill_grey(image, colour & 255, key & 255);
    case 8:
      return paint_non_grey(image, colour);
    case 9:
      return fill_key(image, colour, key, average);
    case 10:
      recolour(image, [=](uint32_t c) { return (c & x) == key ? colour : c; });
      return 0;
    default:
      return 0;
  }
}
