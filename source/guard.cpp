// Guard implementation. Faults in a guarded body are caught by a vectored exception
// handler that consults a thread-local label, because this compiler offers no
// __try/__except; the probe uses IsBadReadPtr, whose own internal fault the handler
// must let pass.
#include "guard.h"

#include <windows.h>

#include <cstring>
#include <mutex>

#include "msgbox.h"

extern "C" __declspec(dllimport) void __cdecl _assert(const char* message, const char* file, unsigned line);

namespace ts {
namespace {

thread_local const char* tlsLabel = nullptr;
thread_local int tlsProbing = 0;

bool isProcessorFault(DWORD code) {
    switch (code) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_INT_OVERFLOW:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_PRIV_INSTRUCTION:
    case EXCEPTION_ARRAY_BOUNDS_EXCEEDED:
    case EXCEPTION_DATATYPE_MISALIGNMENT:
    case EXCEPTION_IN_PAGE_ERROR:
    case EXCEPTION_STACK_OVERFLOW:
    case EXCEPTION_FLT_DIVIDE_BY_ZERO:
    case EXCEPTION_FLT_INVALID_OPERATION:
        return true;
    default:
        return false;
    }
}

LONG CALLBACK faultHandler(EXCEPTION_POINTERS* info) {
    if (tlsProbing != 0 || tlsLabel == nullptr) return EXCEPTION_CONTINUE_SEARCH;
    if (!isProcessorFault(info->ExceptionRecord->ExceptionCode)) return EXCEPTION_CONTINUE_SEARCH;
    fatalExit(kCatchAllPrefix, tlsLabel);
}

PVOID faultHandlerHandle = nullptr;

void installFaultHandler() {
    static std::once_flag once;
    std::call_once(once, [] { faultHandlerHandle = AddVectoredExceptionHandler(1, faultHandler); });
}

}  // namespace

void removeFaultHandler() {
    if (faultHandlerHandle != nullptr) RemoveVectoredExceptionHandler(faultHandlerHandle);
    faultHandlerHandle = nullptr;
}

void fatalExit(const char* prefix, const char* label) {
    // Built in a static buffer: this runs once, on the way out of the process.
    static char text[512];
    text[0] = '\0';
    strncat(text, prefix, sizeof(text) - 1);
    strncat(text, label, sizeof(text) - 1 - strlen(text));
    tlsLabel = nullptr;
    errorBox(text);
    TerminateProcess(GetCurrentProcess(), 1);
    for (;;) Sleep(INFINITE);
}

void probe(const void* p, const char* label) {
    ++tlsProbing;
    const BOOL bad = IsBadReadPtr(p, 1);
    --tlsProbing;
    if (bad) fatalExit(kProbePrefix, label);
}

GuardScope::GuardScope(const char* label) : outer_(tlsLabel) {
    installFaultHandler();
    tlsLabel = label;
}

GuardScope::~GuardScope() { tlsLabel = outer_; }

void assertFailed(const char* expression, const char* file, unsigned line) {
    _assert(expression, file, line);
    abort();
}

}  // namespace ts
