// kernels: LaneKernels
#include "simd/lane_operations.hpp"

#include "simd/lanes.hpp"

namespace {

using tessaro::lane_room;
using tessaro::LaneInput;
using tessaro::LaneOperation;

typedef uint8_t V16 __attribute__((vector_size(16)));
typedef uint8_t V32 __attribute__((vector_size(32)));
typedef uint8_t V64 __attribute__((vector_size(64)));

template <class V>
TESSARO_INLINE void put_all(uint8_t* out, const V& v) {
  put(out, v);
}
TESSARO_INLINE void put_all(uint8_t* out, const DoublePair& v) { write_lanes(out, v); }

// Reads vectors u and v, and writes an expression; vectors come in all widths, which the definitions take
// too.
#define LANES(takes, V, ...)                                                      \
  {                                                                               \
#__VA_ARGS__ " of " #V, LaneInput::takes, [](const uint8_t* in, uint8_t* out) { \
      [[maybe_unused]] const auto u = get<V>(in), v = get<V>(in + sizeof(V));       \
      put_all(out, __VA_ARGS__);                                                    \
    } \
  }
#define BYTES(V)                                                                                         \
  LANES(bytes, V, behind<1>(u, v)), LANES(bytes, V, behind<2>(u, v)), LANES(bytes, V, behind<4>(u, v)),  \
      LANES(bytes, V, last_all_over<1>(u)), LANES(bytes, V, last_all_over<2>(u)),                        \
      LANES(bytes, V, last_all_over<4>(u)), LANES(bytes, V, lane_ends<1>(u)),                            \
      LANES(bytes, V, lane_ends<2>(u)), LANES(bytes, V, lane_ends<4>(u)), LANES(bytes, V, raised<1>(u)), \
      LANES(bytes, V, raised<2>(u)), LANES(bytes, V, raised<4>(u)), LANES(bytes, V, raised<8>(u)),       \
      LANES(bytes, V, lanes_raised<1>(u)), LANES(bytes, V, byte_sums(u))
#define STATEMENT(takes, ...)                                                            \
  {                                                                                      \
#__VA_ARGS__, LaneInput::takes, [](const uint8_t* in, uint8_t* out) { __VA_ARGS__; } \
  }
// The bytes that are read end where the room does.
#define WHOLE(n)                                                     \
  STATEMENT(bytes, put(out, read_whole<n>(in + lane_room - 8 * n))), \
      STATEMENT(bytes, write_whole<n>(out + lane_room - 8 * n, get<Whole>(in)))
#define DOUBLES(D)                                                                                         \
  STATEMENT(doubles, D a; D b; read_lanes(in, a); read_lanes(in + 64, b); write_lanes(out, (a + b) * 3.0); \
            write_lanes(out + 64, a * b)),                                                                 \
      STATEMENT(bytes, D a; to_doubles(get<Whole>(in), a); write_lanes(out, a)),                           \
      STATEMENT(doubles, D a; read_lanes(in, a); put(out, to_whole(a)))

const LaneOperation operations[] = {
    BYTES(V16),
    BYTES(V32),
    BYTES(V64),
    LANES(bytes, V64, lanes_raised<2>(u)),
    WHOLE(1),
    WHOLE(2),
    WHOLE(3),
    WHOLE(4),
    DOUBLES(DoublePair),
    DOUBLES(Double8),
    LANES(doubles, double, converted(u)),
    LANES(doubles, double, converted64(u)),
    LANES(bytes, Natural, any_negative(u)),
    LANES(bytes, Int4, none_set(u)),
    LANES(products, Short8, dot_pairs(u, v)),
    LANES(bytes, Int4, narrowed(u, v)),
    STATEMENT(bytes, V32 a; V32 b; unzipped(in, a, b); put(out, a); put(out + 32, b)),
    STATEMENT(bytes, zipped(out, get<V32>(in), get<V32>(in + 32), get<V32>(in + 64))),
    STATEMENT(bytes, zipped(out, get<V32>(in), get<V32>(in + 32), get<V32>(in + 64), get<V32>(in + 96))),
};

}  // namespace

TESSARO_KERNELS(LaneKernels){.begin = operations, .end = operations + sizeof operations / sizeof *operations};
