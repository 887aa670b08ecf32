// The allocation meter: malloc and friends defined here take precedence over the C
// library's for the whole process and forward to glibc's own entry points, counting the
// usable size of every block.
#include "alloc_meter.h"

#include <atomic>
#include <cerrno>
#include <cstddef>

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(memory_sanitizer)
#define MESH_BENCH_NO_METER 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || !defined(__GLIBC__)
#define MESH_BENCH_NO_METER 1
#endif

namespace {

std::atomic<int64_t> inUse{0};
std::atomic<int64_t> peak{0};
std::atomic<int64_t> base{0};

[[maybe_unused]] void count(int64_t bytes) {
    const int64_t now = inUse.fetch_add(bytes, std::memory_order_relaxed) + bytes;
    int64_t seen = peak.load(std::memory_order_relaxed);
    while (now > seen && !peak.compare_exchange_weak(seen, now, std::memory_order_relaxed)) {
    }
}

}  // namespace

namespace meshbench {

void meterStart() {
    base = inUse.load();
    peak = base.load();
}

int64_t meterPeak() { return peak.load() - base.load(); }

#ifdef MESH_BENCH_NO_METER
bool meterAvailable() { return false; }
}  // namespace meshbench
#else
bool meterAvailable() { return true; }
}  // namespace meshbench

#include <malloc.h>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
void* __libc_memalign(size_t alignment, size_t size);
void __libc_free(void* block);

static void* counted(void* block) {
    if (block != nullptr) count(int64_t(malloc_usable_size(block)));
    return block;
}

void* malloc(size_t size) { return counted(__libc_malloc(size)); }
void* calloc(size_t count, size_t size) { return counted(__libc_calloc(count, size)); }
void* memalign(size_t alignment, size_t size) { return counted(__libc_memalign(alignment, size)); }
void* aligned_alloc(size_t alignment, size_t size) { return counted(__libc_memalign(alignment, size)); }
void* valloc(size_t size) { return counted(__libc_memalign(4096, size)); }
void* pvalloc(size_t size) { return counted(__libc_memalign(4096, (size + 4095) & ~size_t(4095))); }

void free(void* block) {
    if (block == nullptr) return;
    count(-int64_t(malloc_usable_size(block)));
    __libc_free(block);
}

void* realloc(void* block, size_t size) {
    const int64_t before = block != nullptr ? int64_t(malloc_usable_size(block)) : 0;
    void* moved = __libc_realloc(block, size);
    if (moved == nullptr && size != 0) return nullptr;
    count(-before);
    return counted(moved);
}

int posix_memalign(void** out, size_t alignment, size_t size) {
    void* block = __libc_memalign(alignment, size);
    if (block == nullptr) return ENOMEM;
    *out = counted(block);
    return 0;
}
}
#endif
