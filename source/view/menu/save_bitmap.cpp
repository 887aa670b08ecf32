// "Bitmap file *.bmp": the window's pixels first, then the save dialog, then the file.
#include <windows.h>
#include <commdlg.h>

#include <cstring>
#include <memory>

#include "tessarin.h"
#include "view/menu/context_menu.h"
#include "view/pass/pass.h"
#include "view/pass/scene_bitmap.h"
#include "view/scene/cscene.h"

namespace ts {
namespace {

constexpr DWORD kNameBytes = 260;
constexpr const char* kExtension = ".bmp";

struct GlobalFreer {
    void operator()(void* block) const { GlobalFree(static_cast<HGLOBAL>(block)); }
};

// A name without ".bmp" (in any case) gets it, when it still fits the buffer.
void appendExtension(char (&name)[kNameBytes]) {
    const size_t length = std::strlen(name);
    const size_t extension = std::strlen(kExtension);
    if (length >= extension && _stricmp(name + length - extension, kExtension) == 0) return;
    if (length + extension < kNameBytes) std::memcpy(name + length, kExtension, extension + 1);
}

bool askFileName(HWND owner, char (&name)[kNameBytes], DWORD* filter) {
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, folder);
    OPENFILENAMEA dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = "Bitmap (*.bmp)\0*.bmp\0";
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = name;
    dialog.nMaxFile = kNameBytes;
    dialog.lpstrInitialDir = folder;
    dialog.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY;
    if (!GetSaveFileNameA(&dialog)) return false;
    *filter = dialog.nFilterIndex;
    return true;
}

}  // namespace

void saveSceneAsBitmap(cScene* scene) {
    // Drawn once more first: the menu that was just chosen from may still cover it.
    renderScene(scene);
    std::unique_ptr<void, GlobalFreer> dib(dibFromScene(scene));
    char name[kNameBytes] = "";
    DWORD filter = 0;
    if (!askFileName(scene->window, name, &filter)) return;
    if (filter == 1) appendExtension(name);
    dibWrite(name, static_cast<HGLOBAL>(dib.get()));
}

}  // namespace ts
