// Requests per second through the scene thread, beside a bare cross-thread
// SendMessage loop measured in the same run.
#include <windows.h>

#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

#include "tessarin.h"
#include "tsobj3d/cnode.h"

namespace {

using Clock = std::chrono::steady_clock;

class EmptyNode : public cNode {
public:
    EmptyNode() : cNode(1003) {}
    void draw(ts::DrawContext&) override {}
    void hook() override {}
};

// The bare peer: a thread with a window whose procedure answers a private message,
// which is all a request costs besides the library's own work.
struct BarePeer {
    HWND window = nullptr;
    std::thread thread;
    HANDLE ready = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    std::vector<void*> appended;

    static LRESULT CALLBACK proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_USER + 1) {
            auto* self = reinterpret_cast<BarePeer*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
            self->appended.push_back(reinterpret_cast<void*>(wParam));  // the peer appends too
            return 1;
        }
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }

    BarePeer() {
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
    }
};

double seconds(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

void row(const char* what, int count, double secs, double reference) {
    const double perSecond = count / secs;
    printf("| %-44s | %9d | %10.0f | %8.2f | %6.3f |\n", what, count, perSecond, secs * 1e6 / count,
           reference > 0 ? (secs / count) / reference : 1.0);
}

}  // namespace

int main() {
    constexpr int kNodes = 100000;
    constexpr int kRefreshes = 20000;
    std::vector<cNode*> nodes(kNodes);
    for (cNode*& n : nodes) n = new EmptyNode;

    cWind* window = swCreateWind("bench", 200, 150, 10, 10, WS_OVERLAPPEDWINDOW);
    swShowWind(window);
    cScene* scene = swCreateScene(window);

    BarePeer peer;
    auto start = Clock::now();
    for (int i = 0; i < kNodes; ++i) SendMessageA(peer.window, WM_USER + 1, reinterpret_cast<WPARAM>(nodes[i]), 0);
    const double bare = seconds(start);

    start = Clock::now();
    for (cNode* n : nodes) smAddNode(n);
    const double library = seconds(start);

    start = Clock::now();
    for (int i = 0; i < kRefreshes; ++i) SendMessageA(peer.window, WM_USER + 1, 0, 0);
    const double bareRefresh = seconds(start);
    smClearScene();
    start = Clock::now();
    for (int i = 0; i < kRefreshes; ++i) smRefreshScene(scene);
    const double refresh = seconds(start);

    printf("| %-44s | %9s | %10s | %8s | %6s |\n", "request", "count", "per second", "us each", "ratio");
    printf("|%s|%s|%s|%s|%s|\n", "----------------------------------------------", "-----------", "------------",
           "----------", "--------");
    row("bare cross-thread SendMessage (peer)", kNodes, bare, bare / kNodes);
    row("smAddNode through the scene thread", kNodes, library, bare / kNodes);
    row("bare cross-thread SendMessage (peer)", kRefreshes, bareRefresh, bareRefresh / kRefreshes);
    row("smRefreshScene, empty scene", kRefreshes, refresh, bareRefresh / kRefreshes);
    printf("\nsmAddNode costs %.1f%% more than the bare send.\n", (library / bare - 1.0) * 100.0);
    return 0;
}
