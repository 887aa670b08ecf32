// smAddNode through the scene thread against a bare cross-thread SendMessage (the
// peer: a thread with a window that appends what it is sent), interleaved in one
// process. Each repetition runs pairs of batches, A then B and B then A by turns, and
// takes the median of the pairs' time ratios; the table gives every repetition, the
// median of their ratios and the spread between them.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

#include "tessarin.h"
#include "tsobj3d/cnode.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRepetitions = 7;
constexpr int kPairs = 31;
constexpr int kBatch = 200;  // calls per batch

class EmptyNode : public cNode {
public:
    EmptyNode() : cNode(1003) {}
    void draw(ts::DrawContext&) override {}
    void hook() override {}
};

// The bare peer: a thread with a window whose procedure answers a private message by
// appending its argument, which is all a request costs besides the library's own work.
struct BarePeer {
    HWND window = nullptr;
    std::thread thread;
    HANDLE ready = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    std::vector<void*> appended;

    static LRESULT CALLBACK proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_USER + 1) {
            auto* self = reinterpret_cast<BarePeer*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
            self->appended.push_back(reinterpret_cast<void*>(wParam));
            return 1;
        }
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }

    BarePeer() {
        appended.reserve(static_cast<size_t>(kRepetitions + 1) * kPairs * kBatch);
        thread = std::thread([this] {
            WNDCLASSA wc = {};
            wc.lpfnWndProc = proc;
            wc.hInstance = GetModuleHandleA(nullptr);
            wc.lpszClassName = "BarePeer";
            RegisterClassA(&wc);
            window = CreateWindowA("BarePeer", "peer", 0, 0, 0, 10, 10, nullptr, nullptr, wc.hInstance, nullptr);
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
            SetEvent(ready);
            MSG msg;
            while (GetMessageA(&msg, nullptr, 0, 0) > 0) DispatchMessageA(&msg);
        });
        WaitForSingleObject(ready, INFINITE);
    }
    ~BarePeer() {
        PostMessageA(window, WM_QUIT, 0, 0);
        thread.join();
        CloseHandle(ready);
    }
};

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 == 1 ? values[n / 2] : 0.5 * (values[n / 2 - 1] + values[n / 2]);
}

// Seconds for one batch of smAddNode, each adding a node made beforehand.
double libraryBatch(std::vector<cNode*>& nodes, size_t& next) {
    const auto start = Clock::now();
    for (int i = 0; i < kBatch; ++i) smAddNode(nodes[next++]);
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double peerBatch(const BarePeer& peer, std::vector<cNode*>& nodes, size_t& next) {
    const auto start = Clock::now();
    for (int i = 0; i < kBatch; ++i) SendMessageA(peer.window, WM_USER + 1, reinterpret_cast<WPARAM>(nodes[next++]), 0);
    return std::chrono::duration<double>(Clock::now() - start).count();
}

struct Repetition {
    double libraryUs;  // median microseconds per call of the repetition's batches
    double peerUs;
    double ratio;      // median of the pairs' ratios, library / peer
};

Repetition repeat(const BarePeer& peer, std::vector<cNode*>& nodes, size_t& next) {
    std::vector<double> library, bare, ratios;
    for (int pair = 0; pair < kPairs; ++pair) {
        double a, b;
        if (pair % 2 == 0) {
            a = libraryBatch(nodes, next);
            b = peerBatch(peer, nodes, next);
        } else {
            b = peerBatch(peer, nodes, next);
            a = libraryBatch(nodes, next);
        }
        library.push_back(a * 1e6 / kBatch);
        bare.push_back(b * 1e6 / kBatch);
        ratios.push_back(a / b);
    }
    return {median(library), median(bare), median(ratios)};
}

// Every thread of the process (the caller, the scene thread, the peer) runs on one
// processor: both kinds of request then pay the same thread switch, and neither gains
// by landing on a processor that other work leaves idle.
DWORD_PTR pinToOneProcessor() {
    DWORD_PTR process = 0, system = 0;
    if (!GetProcessAffinityMask(GetCurrentProcess(), &process, &system) || process == 0) return 0;
    const DWORD_PTR lowest = process & (~process + 1);
    SetProcessAffinityMask(GetCurrentProcess(), lowest);
    return lowest;
}

}  // namespace

int main() {
    const DWORD_PTR processor = pinToOneProcessor();
    // Every call adds a node of its own; the peer is sent the same pointers.
    std::vector<cNode*> nodes(static_cast<size_t>(kRepetitions + 1) * kPairs * kBatch * 2);
    for (cNode*& n : nodes) n = new EmptyNode;
    cWind* window = swCreateWind("bench", 200, 150, 10, 10, WS_OVERLAPPEDWINDOW);
    swCreateScene(window);  // hidden: no paint competes with the requests
    BarePeer peer;
    size_t next = 0;
    repeat(peer, nodes, next);  // warm-up, not reported

    printf("smAddNode through the scene thread (A) against a bare cross-thread SendMessage (B),\n");
    printf("interleaved in one process: %d repetitions of %d pairs of %d calls each, every thread on\n",
           kRepetitions, kPairs, kBatch);
    printf("one processor (affinity mask 0x%llx).\n\n", static_cast<unsigned long long>(processor));
    printf("| repetition | A us/call | B us/call | median A/B of the pairs |\n");
    printf("|-----------:|----------:|----------:|------------------------:|\n");
    std::vector<double> ratios;
    for (int r = 1; r <= kRepetitions; ++r) {
        const Repetition rep = repeat(peer, nodes, next);
        ratios.push_back(rep.ratio);
        printf("| %10d | %9.2f | %9.2f | %23.3f |\n", r, rep.libraryUs, rep.peerUs, rep.ratio);
    }
    const double mid = median(ratios);
    const double spread = (*std::max_element(ratios.begin(), ratios.end()) -
                           *std::min_element(ratios.begin(), ratios.end())) / mid;
    printf("\nmedian of the repetitions' ratios: %.3fx (target at most 1.10x)\n", mid);
    printf("spread between repetitions, (max - min) / median: %.1f%% (must stay under 10%%)\n", spread * 100.0);
    return 0;
}
