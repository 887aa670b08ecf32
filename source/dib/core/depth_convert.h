// Colour-depth conversions: five single steps and the chains built from them.
// Each returns a new block, or an empty one after its message; the source is only read
// (except that the reductions of the chains work on their own intermediates).
#pragma once

#include "dib/core/dib_host.h"

namespace ts::dib {

OwnedBlock dib1To4(Host& host, Source src);
OwnedBlock dib4To8(Host& host, Source src);
OwnedBlock dib8To24(Host& host, Source src);
OwnedBlock dib16To24(Host& host, Source src);
OwnedBlock dib32To24(Host& host, Source src);

OwnedBlock dib1To8(Host& host, Source src);
OwnedBlock dib1To24(Host& host, Source src);
OwnedBlock dib4To24(Host& host, Source src);
OwnedBlock dib24To1(Host& host, Source src);
OwnedBlock dib8To1(Host& host, Source src);
OwnedBlock dib4To1(Host& host, Source src);
OwnedBlock dib24To4(Host& host, Source src);
OwnedBlock dib8To4(Host& host, Source src);
OwnedBlock dib24To8(Host& host, Source src, bool gray);

}  // namespace ts::dib
