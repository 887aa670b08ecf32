#!/usr/bin/env python3
"""Writes Tessarin20.ini: the settings template the library must write when no
settings file exists, made independently of the library from the table of keys."""
import os

GROUPS = [
    [("initDraw2D", "%d", 1, "(Boolean flag if 2D objects should be drawn after inserting)"),
     ("relToPos2D", "%d", 1, "(Boolean flag if 2D objects should be drawn relative to the current position)")],
    [("clipnear", "%f", 0.009999999776482582, "(Distance from the eye point to near cliping plane)"),
     ("clipfar", "%f", 1000.0, "(Distance from the eye point to far cliping plane)"),
     ("angle", "%f", 45.0, "(View angle)")],
    [("rotate_drot", "%f", 15.0, "(Incremental rotation angle in TS_ROTATE mode)"),
     ("rotate_dpos", "%f", 0.1, "(Incremental position translation in TS_ROTATE mode)"),
     ("fly_dspeed", "%f", 0.005, "(Incremental speed increase (keyboard) in TS_FLY mode)"),
     ("walk_drot", "%f", 5.0, "(Incremental rotation angle (keyboard) in TS_WALK mode)"),
     ("walk_dpos", "%f", 0.1, "(Incremental position translation (keyboard) in TS_WALK mode)")],
    [("sensib_rotate", "%f", 1.0, "(Mouse sensebility in TS_ROTATE mode)"),
     ("sensib_x_fly", "%f", 1.0, "(Horizontal mouse sensebility in TS_FLY mode)"),
     ("sensib_y_fly", "%f", 1.0, "(Vertical mouse sensebility in TS_FLY mode)"),
     ("sensib_x_walk", "%f", 1.0, "(Horizontal mouse sensebility in TS_WALK mode)"),
     ("sensib_y_walk", "%f", 1.0, "(Vertical mouse sensebility in TS_WALK mode)"),
     ("auto_delay", "%d", 50, "(Delay for continuous motion in TS_ROTATE mode)"),
     ("yaw_roll_ratio", "%f", 0.0, "(Ratio between yaw and roll. 0.0 -> horiz. mouse movement is 100% yaw)"),
     ("yaw_around_y", "%d", 1,
      "(Boolean flag if yaw is around the world y axis. If FALSE yaw is around airplanes look up axis)"),
     ("steardelay", "%f", 1.2, "(For future use)")],
    [("colorbits", "%d", 24, "(NO. of bits of OpenGL color buffer)"),
     ("depthbits", "%d", 16, "(NO. of bits of OpenGL depth buffer)"),
     ("pickvolume", "%d", 2, "(Rectangle size of the pick volume for selection mode)"),
     ("selectBufSize", "%d", 64, "(Size of selection buffer)")],
    [("action_mode", "%d", 0, "(0=TS_ROTATE, 1=TS_FLY, 2=TS_WALK)"),
     ("shade_mode", "%d", 100000, "(100000=SMOOTH, 100001=FLAT, 100002=NONE)"),
     ("draw_mode", "%d", 100012, "(100010=POINT, 100011=LINE, 100012=FILL)"),
     ("project_mode", "%d", 0, "(0=PERSPECTIVE, 1=ORTHOGONAL)")],
    [("BackColor_r", "%f", 0.0, "(Background color: red)"),
     ("BackColor_g", "%f", 0.0, "(Background color: green)"),
     ("BackColor_b", "%f", 0.0, "(Background color: blue)"),
     ("lightmodelamb_r", "%f", 0.2, "(Ambient light component: red)"),
     ("lightmodelamb_g", "%f", 0.2, "(Ambient light component: green)"),
     ("lightmodelamb_b", "%f", 0.2, "(Ambient light component: blue)")],
    [("iniVPName", "%s", "Default", "(Initial viewpoint name)"),
     ("iniPos_x", "%f", 0.0, "(Initial eye pos.x)"),
     ("iniPos_y", "%f", 0.0, "(Initial eye pos.y)"),
     ("iniPos_z", "%f", 5.0, "(Initial eye pos.z)"),
     ("iniRot", "%f", 0.0, "(Initial rotation angle used in TS_ROTATE mode)"),
     ("iniAxis_x", "%f", 0.0, "(Initial rotation axis.x used in TS_ROTATE mode)"),
     ("iniAxis_y", "%f", 0.0, "(Initial rotation axis.y used in TS_ROTATE mode)"),
     ("iniAxis_z", "%f", 0.0, "(Initial rotation axis.z used in TS_ROTATE mode)")],
    # The one key the library added to the classic file: the home page of the Help menu.
    [("homepage", "%s", "http://www.example.com/tessarin/", "(Address of the library's home page on the web)")],
]

lines = ["Initialization Parameters for Tessarin (v2.000, 27-FEB-99)", ""]
for index, group in enumerate(GROUPS):
    if index:
        lines.append("")
    for key, fmt, value, comment in group:
        lines.append(("%-17s " + fmt + " %s") % (key, value, comment))
out = os.path.join(os.path.dirname(os.path.abspath(__file__)), "Tessarin20.ini")
with open(out, "w", newline="\n") as f:
    f.write("\n".join(lines) + "\n")
