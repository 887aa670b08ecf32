// Fuzz target of the settings reader: any text, read as a settings file, must stay in
// its buffers; what it reads must write back without fault.
#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "view/scene/settings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::FILE* in = fmemopen(const_cast<uint8_t*>(data), size, "r");
    if (in == nullptr) return 0;
    ts::SceneSettings settings;
    ts::readSettings(in, settings);
    std::fclose(in);
    std::FILE* out = std::fopen("/dev/null", "w");
    if (out != nullptr) {
        ts::writeSettings(out, settings);
        std::fclose(out);
    }
    return 0;
}
