// Working memory of one call: taken from the heap, given back at the end of the scope, null when there is
// none left.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace tessaro {

template <class T>
class HeapArray {
 public:
  explicit HeapArray(size_t count, bool zeroed = false) {
    if (count > SIZE_MAX / 2 / sizeof(T)) return;
    at_ = static_cast<T*>(zeroed ? std::calloc(count + (count == 0), sizeof(T))
                                 : std::malloc((count + (count == 0)) * sizeof(T)));
  }
  HeapArray(const HeapArray&) = delete;
  HeapArray& operator=(const HeapArray&) = delete;
  ~HeapArray() { std::free(at_); }

  explicit operator bool() const { return at_ != nullptr; }
  T* data() { return at_; }
  T& operator[](size_t i) { return at_[i]; }

 private:
  T* at_ = nullptr;
};

}  // namespace tessaro
