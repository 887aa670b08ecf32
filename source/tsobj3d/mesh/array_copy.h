// The owned arrays of the mesh nodes: uninitialised buffers and copies of a caller's
// array, with failure as a value, so that the nodes report a failed copy with a message
// of their own instead of an exception.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

namespace ts::mesh {

// An owned array as the node records hold it: one pointer, its count kept beside it.
template <typename T>
using Buffer = std::unique_ptr<T[]>;

static_assert(sizeof(Buffer<float>) == sizeof(float*), "an owned array is one pointer in the node record");

// Uninitialised storage for count elements (at least one, so that success is never
// null), or null when it cannot be had. Sizes above PTRDIFF_MAX bytes are refused here:
// a nothrow new of such an array throws std::bad_array_new_length instead of failing
// (a 3.6 GB array in a 32-bit process).
template <typename T>
Buffer<T> allocateBuffer(int64_t count) {
    if (count < 0 || uint64_t(count) > uint64_t(PTRDIFF_MAX) / sizeof(T)) return nullptr;
    return Buffer<T>(new (std::nothrow) T[count > 0 ? size_t(count) : 1]);
}

// to := a copy of count elements of from; false, with to null, when count is negative
// or the memory cannot be had.
template <typename T>
bool copyArray(Buffer<T>& to, const T* from, int64_t count) {
    to = allocateBuffer<T>(count);
    if (!to) return false;
    std::copy(from, from + count, to.get());
    return true;
}

}  // namespace ts::mesh
