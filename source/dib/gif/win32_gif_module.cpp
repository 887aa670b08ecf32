// The library's GIF module and its owner.
#include "win32_gif_module.h"

namespace ts::gif {

namespace {

struct ModuleOwner {
    std::mutex mutex;
    GifModule module{};
};

ModuleOwner& owner() {
    static ModuleOwner instance;
    return instance;
}

}  // namespace

ModuleLease::ModuleLease() : lock_(owner().mutex), module_(owner().module) {}

}  // namespace ts::gif
