// The one-line dialog that asks for a new viewpoint's name.
#pragma once

#include <windows.h>

namespace ts {

// Shows "Enter viewpoint name:" owned by owner; true and the name (at most 63
// characters) on OK, false on Cancel.
bool promptViewpointName(HWND owner, char* name, int size);

}  // namespace ts
