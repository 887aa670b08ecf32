// Frames per second of a scene of 10,000 2D nodes (lines, rectangles, texts, pixels)
// over a 3D box, beside a bare Win32 + OpenGL program that makes the same GL calls for
// the box and, after the same SwapBuffers, the same GDI calls; rounds alternate
// (library, bare, bare, library, ...) in one run, and the table gives medians and
// spread. Both windows show the same pixels.
#include <windows.h>
#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "common/bare_pass.h"
#include "tessarin.h"

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kNodes = 10000;  // a quarter of each kind
constexpr int kWidth = 320;
constexpr int kHeight = 240;
constexpr int kFrames = 100;  // processor time is counted in ticks of 10 ms or more
constexpr int kRounds = 21;

// The 2D content: 2,500 each of lines, rectangles, texts and pixels, spread over the
// window. Absolute coordinates (the library's relative mode is switched off).
struct Item {
    int kind;  // 0 line, 1 rectangle, 2 text, 3 pixel
    int x, y;
};

std::vector<Item> makeItems() {
    std::vector<Item> items;
    for (int i = 0; i < kNodes; ++i) items.push_back({i % 4, (i * 37) % (kWidth - 40), (i * 53) % (kHeight - 20)});
    return items;
}

const char kText[] = "2D";
constexpr COLORREF kTextColour = RGB(255, 255, 0);
constexpr COLORREF kPixelColour = RGB(0, 255, 255);

// --- the library: a scene hosted in an application window (no scene thread) ----------

struct LibraryScene {
    HWND hwnd = bench::createWindow("BenchLibrary2D", bench::hostProc, 20, kWidth, kHeight);
    cScene* scene = bench::hostedScene();
    explicit LibraryScene(const std::vector<Item>& items) {
        snColorRGB(nullptr, 1.0f, 0.0f, 0.0f);
        snBox(nullptr, -1.0f, -1.0f, -1.0f, 1.0f, 1.0f, 1.0f, GLU_OUTSIDE);
        smRelToPos2D(FALSE);
        for (const Item& it : items) {
            switch (it.kind) {
            case 0: snLine2D(nullptr, it.x, it.y, it.x + 30, it.y + 10); break;
            case 1: snRectangle2D(nullptr, it.x, it.y, it.x + 12, it.y + 8); break;
            case 2: snText2D(nullptr, it.x, it.y, kText, 1.0f, 1.0f, 0.0f); break;
            default: snPixel2D(nullptr, it.x, it.y, 0.0f, 1.0f, 1.0f); break;
            }
        }
    }
    ~LibraryScene() { DestroyWindow(hwnd); }
    void frame() const { smRefreshScene(scene); }
};

// --- the bare program: the same GL and GDI calls as one pass, without the library -----

struct BareScene {
    bench::BareGl gl{bench::createWindow("BenchBare2D", DefWindowProcA, 40 + kWidth, kWidth, kHeight)};
    HDC dc = gl.dc;
    const std::vector<Item>& items;

    explicit BareScene(const std::vector<Item>& it) : items(it) {
        // The 2D state a new library scene starts with.
        SelectObject(dc, GetStockObject(WHITE_PEN));
        SelectObject(dc, GetStockObject(NULL_BRUSH));
        SelectObject(dc, GetStockObject(SYSTEM_FONT));
        SetBkMode(dc, TRANSPARENT);
    }

    static void drawBox() {
        static const float n[6][3] = {{0, -1, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 0}, {0, 0, -1}, {-1, 0, 0}};
        static const float c[8][3] = {{-1, -1, 1}, {1, -1, 1}, {1, -1, -1}, {-1, -1, -1},
                                      {-1, 1, 1},  {1, 1, 1},  {1, 1, -1},  {-1, 1, -1}};
        static const int f[6][4] = {{0, 3, 2, 1}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};
        glColor3f(1.0f, 0.0f, 0.0f);
        glBegin(GL_QUADS);
        for (int i = 0; i < 6; ++i) {
            glNormal3fv(n[i]);
            for (int k : f[i]) glVertex3fv(c[k]);
        }
        glEnd();
    }

    void frame3D() {
        gl.begin();
        drawBox();
        gl.end();
    }

    // The library's 2D calls per node: a line returns the pen to the 2D position.
    void frame2D() {
        MoveToEx(dc, 0, 0, nullptr);
        SetROP2(dc, R2_COPYPEN);
        for (const Item& it : items) {
            switch (it.kind) {
            case 0:
                MoveToEx(dc, it.x, it.y, nullptr);
                LineTo(dc, it.x + 30, it.y + 10);
                MoveToEx(dc, 0, 0, nullptr);
                break;
            case 1: Rectangle(dc, it.x, it.y, it.x + 13, it.y + 9); break;
            case 2:
                SetTextColor(dc, kTextColour);
                TextOutA(dc, it.x, it.y, kText, 2);
                break;
            default: SetPixel(dc, it.x, it.y, kPixelColour); break;
            }
        }
        ValidateRect(gl.hwnd, nullptr);
    }

    void frame() {
        frame3D();
        frame2D();
    }
};

// Seconds of processor time the process has used, all its threads (the GL driver's
// included): unlike the wall clock, it does not count the time other programs of a
// busy machine hold the processors.
double processSeconds() {
    FILETIME created, exited, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernel, &user);
    auto seconds = [](const FILETIME& t) { return (double(t.dwHighDateTime) * 4294967296.0 + t.dwLowDateTime) * 1e-7; };
    return seconds(kernel) + seconds(user);
}

struct Rate {
    double wall;  // frames per second of the wall clock
    double cpu;   // frames per second of processor time
};

template <class Frame>
Rate framesPerSecond(Frame&& frame) {
    const auto start = Clock::now();
    const double cpuStart = processSeconds();
    for (int i = 0; i < kFrames; ++i) frame();
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return {kFrames / seconds, kFrames / std::max(processSeconds() - cpuStart, 1e-3)};
}

struct Spread {
    double median, low, high;
};

Spread spreadOf(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return {v[v.size() / 2], v.front(), v.back()};
}

}  // namespace

// One row of the table: median and spread of a list of values.
void printRow(const char* name, const std::vector<double>& values, const char* format) {
    const Spread v = spreadOf(values);
    std::printf("%-40s ", name);
    std::printf(format, v.median);
    std::printf("   ");
    std::printf(format, v.low);
    std::printf(" .. ");
    std::printf(format, v.high);
    std::printf("\n");
}

int main() {
    const std::vector<Item> items = makeItems();
    LibraryScene lib(items);
    BareScene bare(items);
    lib.frame();  // warm-up of both
    bare.frame();
    std::vector<Rate> library, peer;
    // A B B A A B ...: neither program always runs first in its pair.
    for (int round = 0; round < kRounds; ++round) {
        if (round % 2 == 0) library.push_back(framesPerSecond([&] { lib.frame(); }));
        peer.push_back(framesPerSecond([&] { bare.frame(); }));
        if (round % 2 == 1) library.push_back(framesPerSecond([&] { lib.frame(); }));
    }
    // Each library round beside the bare round next to it: the machine's drift cancels.
    std::vector<double> lw, bw, rw, lc, bc, rc;
    for (int i = 0; i < kRounds; ++i) {
        lw.push_back(library[i].wall), bw.push_back(peer[i].wall), rw.push_back(library[i].wall / peer[i].wall);
        lc.push_back(library[i].cpu), bc.push_back(peer[i].cpu), rc.push_back(library[i].cpu / peer[i].cpu);
    }
    std::printf("10,000 2D nodes over a 3D box, %d x %d, %d rounds of %d frames, alternating\n", kWidth, kHeight,
                kRounds, kFrames);
    std::printf("%-40s %8s   %s\n", "", "median", "spread (min .. max)");
    printRow("Tessarin, frames per second", lw, "%8.1f");
    printRow("bare program, frames per second", bw, "%8.1f");
    printRow("ratio, round by round", rw, "%8.3f");
    printRow("Tessarin, frames per processor second", lc, "%8.1f");
    printRow("bare program, frames per processor second", bc, "%8.1f");
    printRow("ratio, round by round", rc, "%8.3f");
    const double wall = spreadOf(rw).median, cpu = spreadOf(rc).median;
    std::printf("target: ratio >= 0.95: wall clock %s, processor time %s\n", wall >= 0.95 ? "met" : "NOT met",
                cpu >= 0.95 ? "met" : "NOT met");
    return 0;
}
