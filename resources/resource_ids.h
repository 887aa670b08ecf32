// Identifiers of the library's resources shared by the resource script and the code.
#pragma once

#define TS_IDR_CONTEXT_MENU     1
#define TS_IDD_LIGHT_SETTINGS   1
#define TS_IDD_VIEW_SETTINGS    2
#define TS_IDD_VIEWPOINT_NAME   3
#define TS_IDC_VIEWPOINT_NAME   1001

// Both settings dialogs: the hidden edit that holds the dialog's scene as hexadecimal
// text, the push-like "Update" check box, and "Help".
#define TS_IDC_SCENE_HANDLE     1100
#define TS_IDC_UPDATE           1101
#define TS_IDC_HELP             1102

// View Settings: three columns of X, Y, Z edits (first, second, third), their captions,
// the labels of the third column, the angle of TS_ROTATE, view angle, clipping planes,
// frame rate and the action-mode radio buttons.
#define TS_IDC_VIEW_POS_X       1110
#define TS_IDC_VIEW_POS_Y       1111
#define TS_IDC_VIEW_POS_Z       1112
#define TS_IDC_VIEW_COL2_X      1113
#define TS_IDC_VIEW_COL2_Y      1114
#define TS_IDC_VIEW_COL2_Z      1115
#define TS_IDC_VIEW_COL3_X      1116
#define TS_IDC_VIEW_COL3_Y      1117
#define TS_IDC_VIEW_COL3_Z      1118
#define TS_IDC_VIEW_COL2_CAPTION 1119
#define TS_IDC_VIEW_COL3_CAPTION 1120
#define TS_IDC_VIEW_COL3_LX     1121
#define TS_IDC_VIEW_COL3_LY     1122
#define TS_IDC_VIEW_COL3_LZ     1123
#define TS_IDC_VIEW_ANGLE_LABEL 1124
#define TS_IDC_VIEW_ANGLE       1125
#define TS_IDC_VIEW_FOV         1126
#define TS_IDC_VIEW_FOV_SLIDER  1127
#define TS_IDC_VIEW_NEAR        1128
#define TS_IDC_VIEW_FAR         1129
#define TS_IDC_VIEW_FPS         1130
#define TS_IDC_VIEW_ROTATE      1131
#define TS_IDC_VIEW_FLY         1132
#define TS_IDC_VIEW_WALK        1133

// Light Settings: the list of lights, the switches of the selected light, its position
// and spot direction, three colours (R, G, B edits, then R, G, B sliders, then the
// "equal " box, ten apart), the spot and the attenuation.
#define TS_IDC_LIGHT_LIST       1200
#define TS_IDC_LIGHT_ON         1201
#define TS_IDC_LIGHT_PARALLEL   1202
#define TS_IDC_LIGHT_POINT      1203
#define TS_IDC_LIGHT_WORLDPOS   1204
#define TS_IDC_LIGHT_POS_X      1210
#define TS_IDC_LIGHT_POS_Y      1211
#define TS_IDC_LIGHT_POS_Z      1212
#define TS_IDC_LIGHT_DIR_X      1213
#define TS_IDC_LIGHT_DIR_Y      1214
#define TS_IDC_LIGHT_DIR_Z      1215
#define TS_IDC_LIGHT_AMBIENT    1220  /* R, G, B edits 1220..1222, sliders 1223..1225, equal 1226 */
#define TS_IDC_LIGHT_DIFFUSE    1230
#define TS_IDC_LIGHT_SPECULAR   1240
#define TS_IDC_LIGHT_COLOR_SLIDER 3   /* offset of a colour's first slider */
#define TS_IDC_LIGHT_COLOR_EQUAL  6   /* offset of a colour's "equal " box */
#define TS_IDC_LIGHT_CUT        1250
#define TS_IDC_LIGHT_CUT_SLIDER 1251
#define TS_IDC_LIGHT_EXP        1252
#define TS_IDC_LIGHT_CONST      1253
#define TS_IDC_LIGHT_LINEAR     1254
#define TS_IDC_LIGHT_QUAD       1255
