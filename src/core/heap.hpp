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

// The same, but small counts stay off the heap.
template <class T, size_t small>
class ScratchArray {
 public:
  explicit ScratchArray(size_t count)
      : at_(count <= small ? room_ : static_cast<T*>(std::malloc(count * sizeof(T)))) {}
  ScratchArray(const ScratchArray&) = delete;
  ScratchArray& operator=(const ScratchArray&) = delete;
  ~ScratchArray() {
    if (at_ != room_) std::free(at_);
  }

  explicit operator bool() const { return at_ != nullptr; }
  T* data() { return at_; }
  T& operator[](size_t i) { return at_[i]; }

 private:
  T room_[small];
  T* at_;
};

}  // namespace tessaro
