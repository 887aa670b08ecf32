// The owner of the bitmap library's module state and its lock.
#include "dib/core/module_state.h"

namespace ts::dib {
namespace {

struct ModuleOwner {
    std::mutex lock;
    ModuleState state{};
};

ModuleOwner& owner() {
    static ModuleOwner instance;
    return instance;
}

}  // namespace

ModuleLease::ModuleLease(Host& host) : host_(host), lock_(owner().lock), state_(owner().state) {
    host_.holdMessages();
}

ModuleLease::~ModuleLease() {
    lock_.unlock();
    host_.showHeldMessages();
}

}  // namespace ts::dib
