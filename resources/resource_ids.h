// Identifiers of the library's resources shared by the resource script and the code.
#pragma once

#define TS_IDR_CONTEXT_MENU     1
#define TS_IDD_VIEWPOINT_NAME   3
#define TS_IDC_VIEWPOINT_NAME   1001
