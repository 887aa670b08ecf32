// dibCopy: a new block holding the whole source block byte for byte.
#include <cstring>

#include "dib/core/reduce.h"

namespace ts::dib {

OwnedBlock dibCopy(Host& host, Source src) {
    OwnedBlock copy(host);
    if (!src.present()) {
        host.report("dibCopy", "No DIB passed!");
        return copy;
    }
    if (!copy.allocate(src.size)) {
        copy.reset();
        host.report("dibCopy", "Not enough memory for DIB!");
        return copy;
    }
    std::memcpy(copy.data(), src.data, src.size);
    return copy;
}

}  // namespace ts::dib
