// The call guard of every sm/sn/sw/se export: pointer probes, a catch-all that also
// catches processor faults, the immediate exit, and the always-on assertions.
#pragma once

#include <utility>

namespace ts {

constexpr const char* kProbePrefix = "Pointer to inaccessible memory: ";
constexpr const char* kCatchAllPrefix = "Unhandled exception in: ";
constexpr const char* kNotInitialized = "Tessarin Window is not initialized!";
constexpr const char* kNoCurrentScene = "Current Scene is not defined!";

// Shows prefix + label in the error box and ends the process at once with code 1:
// no atexit handlers, no destructors, no DLL detach work.
[[noreturn]] void fatalExit(const char* prefix, const char* label);

// Unregisters the processor-fault handler; the library calls it when it is unloaded,
// since the handler's code goes with it.
void removeFaultHandler();

// Reads one byte at p; if that faults (NULL included), reports label and exits.
void probe(const void* p, const char* label);

// Marks the calling thread as running the body of the export `label` for as long as
// it lives; a processor fault raised meanwhile on this thread ends the process with
// "Unhandled exception in: <label>". Scopes nest: the innermost label is reported.
class GuardScope {
public:
    explicit GuardScope(const char* label);
    ~GuardScope();
    GuardScope(const GuardScope&) = delete;
    GuardScope& operator=(const GuardScope&) = delete;

private:
    const char* outer_;
};

// Runs body under the catch-all of the export `label`.
template <class Body>
auto guarded(const char* label, Body&& body) -> decltype(body()) {
    GuardScope scope(label);
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        fatalExit(kCatchAllPrefix, label);
    }
}

// Reports a broken invariant through the C runtime's assertion (which aborts).
[[noreturn]] void assertFailed(const char* expression, const char* file, unsigned line);

}  // namespace ts

// Always-on assertion naming the library's source file and line, as the library has
// always reported them: TS_ASSERT(hDummy != NULL, "thread", 45).
#define TS_ASSERT(expr, file, line) ((expr) ? (void)0 : ::ts::assertFailed(#expr, "..\\source\\" file ".cpp", line))
