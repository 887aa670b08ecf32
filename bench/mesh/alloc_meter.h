// Peak heap use of a stretch of code, counted by wrapping the C allocator of the whole
// process (every library in it allocates through malloc), so the peers' internal
// tables count as much as ours.
#pragma once

#include <cstdint>

namespace meshbench {

// False in builds where the allocator cannot be wrapped (sanitizers, non-glibc).
bool meterAvailable();

// Starts a stretch: its peak is counted from the bytes in use now.
void meterStart();

// The most bytes in use above the start, since meterStart().
int64_t meterPeak();

}  // namespace meshbench
