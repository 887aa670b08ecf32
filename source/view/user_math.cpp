// Exports of the vector maths and the random numbers: smNormalize, srandstd, randstd.
#include <windows.h>

#include "guard/guard.h"
#include "math/randstd.h"
#include "math/vecmath.h"
#include "tessarin.h"

extern "C" {

TS_API void smNormalize(float* v) {
    ts::guarded("smNormalize", [&] {
        // A zero vector has no direction: it is left as it is rather than turned into
        // NaNs that would spread through the caller's arithmetic.
        if (v[0] == 0.0f && v[1] == 0.0f && v[2] == 0.0f) return;
        ts::normalize(v);
    });
}

TS_API void srandstd(unsigned int seed) { ts::sharedRandStd().seed(seed); }

TS_API unsigned int randstd(unsigned int n) {
    const uint32_t word = ts::sharedRandStd().step();
    // Reducing by 0 has always been the processor's division fault; raise it
    // deliberately rather than leave the outcome to the compiler.
    if (n == 0) {
        RaiseException(EXCEPTION_INT_DIVIDE_BY_ZERO, 0, 0, nullptr);
        return 0;  // only if a handler of the caller chose to continue
    }
    return word % n;
}

}  // extern "C"
