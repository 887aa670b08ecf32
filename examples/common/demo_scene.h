/* demo_scene.h - the demo's scene: lights and a turning group of shapes (the demo and
 * the HUD example draw it). */
#ifndef TESSARIN_EXAMPLE_DEMO_SCENE_H
#define TESSARIN_EXAMPLE_DEMO_SCENE_H

/* Two lights of the current scene: a warm one from the front left and a spot light
 * from above. */
void addDemoLights(void);
/* Axes, a box, a sphere, a cone and a disk, turning 2 degrees about y per frame. */
void addDemoShapes(void);

#endif
