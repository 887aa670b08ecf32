// Name table for 64-bit builds: names are handed out in rising order, skip 0 and any
// name still in use after a wrap, and are released when their node dies. Nodes are
// made on the caller's threads and destroyed on the scene thread, hence the lock.
#include "tsobj3d/nodenames.h"

#include <mutex>
#include <unordered_map>

namespace ts {
namespace {

struct NameTable {
    std::mutex lock;
    std::unordered_map<uint32_t, cNode*> nodes;
    uint32_t last = 0;
};

NameTable& table() {
    static NameTable* instance = new NameTable;  // outlives every static node owner
    return *instance;
}

}  // namespace

uint32_t acquireNodeName(cNode* node) {
    NameTable& t = table();
    std::lock_guard<std::mutex> hold(t.lock);
    do {
        ++t.last;
    } while (t.last == 0 || t.nodes.count(t.last) != 0);
    t.nodes.emplace(t.last, node);
    return t.last;
}

void releaseNodeName(uint32_t name) {
    NameTable& t = table();
    std::lock_guard<std::mutex> hold(t.lock);
    t.nodes.erase(name);
}

cNode* nodeFromName(uint32_t name) {
    NameTable& t = table();
    std::lock_guard<std::mutex> hold(t.lock);
    auto found = t.nodes.find(name);
    return found == t.nodes.end() ? nullptr : found->second;
}

}  // namespace ts
