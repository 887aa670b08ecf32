// Pictures of single nodes: a box, a sphere, a cylinder with and without caps, a disk,
// a quad primitive, back-face culling after a triangle, and a colour set in a group.
#include <GL/gl.h>
#include <GL/glu.h>

#include <gtest/gtest.h>

#include "library/globals.h"
#include "math/gl_canvas.h"
#include "tessarin.h"
#include "tsobj3d/cgroup.h"
#include "tsobj3d/visible/cbox3d.h"
#include "tsobj3d/visible/ccolor3d.h"
#include "tsobj3d/visible/ccylinder3d.h"
#include "tsobj3d/visible/cdisk3d.h"
#include "tsobj3d/visible/cenable3d.h"
#include "tsobj3d/visible/cprimitive3d.h"
#include "tsobj3d/visible/csphere3d.h"
#include "tsobj3d/visible/ctetragon3d.h"
#include "tsobj3d/visible/ctriangle3d.h"
#include "view/scene/cscene.h"

namespace {

class NodePixels : public tst::CanvasTest {
protected:

    // White diffuse light along -z (from the viewer), no ambient light: a face's
    // brightness is the z component of its normal.
    void lightFromViewer() {
        const float dir[4] = {0, 0, 1, 0}, white[4] = {1, 1, 1, 1}, none[4] = {0, 0, 0, 1};
        glLightfv(GL_LIGHT0, GL_POSITION, dir);
        glLightfv(GL_LIGHT0, GL_DIFFUSE, white);
        glLightfv(GL_LIGHT0, GL_AMBIENT, none);
        glLightfv(GL_LIGHT0, GL_SPECULAR, none);
        glLightModelfv(GL_LIGHT_MODEL_AMBIENT, none);
        glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
        glEnable(GL_COLOR_MATERIAL);
        glEnable(GL_LIGHT0);
        glEnable(GL_LIGHTING);
        glEnable(GL_DEPTH_TEST);
    }
};

TEST_F(NodePixels, BoxCoversItsSquare) {
    cBox3D box;
    box.set(-0.5f, -0.5f, -0.5f, 0.5f, 0.5f, 0.5f, GLU_OUTSIDE);
    box.draw(context);
    EXPECT_TRUE(canvas.at(0, 0).lit());
    EXPECT_TRUE(canvas.at(0.45f, 0.45f).lit());
    EXPECT_TRUE(canvas.at(-0.45f, -0.45f).lit());
    EXPECT_TRUE(canvas.at(0.55f, 0).black());
    EXPECT_TRUE(canvas.at(0, -0.55f).black());
}

// Whichever face is turned to the viewer, with culling on the face seen is lit fully:
// each face's winding agrees with its normal, for both orientations.
TEST_F(NodePixels, BoxFacesAreLitFromEverySide) {
    const float turns[6][4] = {{0, 0, 1, 0},  {90, 0, 1, 0},  {180, 0, 1, 0},
                               {270, 0, 1, 0}, {90, 1, 0, 0}, {-90, 1, 0, 0}};
    for (int orientation : {GLU_OUTSIDE, GLU_INSIDE}) {
        for (const auto& t : turns) {
            canvas.reset();
            lightFromViewer();
            glEnable(GL_CULL_FACE);
            glRotatef(t[0], t[1], t[2], t[3]);
            cBox3D box;
            box.set(-0.5f, -0.5f, -0.5f, 0.5f, 0.5f, 0.5f, orientation);
            box.draw(context);
            const tst::Pixel c = canvas.at(0.1f, 0.1f);
            EXPECT_GT(c.r, 240) << "orientation " << orientation << " turn " << t[0];
        }
    }
}

TEST_F(NodePixels, SphereIsRoundAndShaded) {
    lightFromViewer();
    cSphere3D s;
    s.set(0.8f, 32, 16, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    s.draw(context);
    const tst::Pixel centre = canvas.at(0.02f, 0.02f);
    const tst::Pixel rim = canvas.at(0.72f, 0);
    EXPECT_GT(centre.r, 240);
    EXPECT_TRUE(rim.lit());
    EXPECT_LT(rim.r, centre.r - 60);
    EXPECT_TRUE(canvas.at(0.58f, 0.58f).black());  // outside the circle, inside its square
    EXPECT_TRUE(canvas.at(0.9f, 0).black());
}

TEST_F(NodePixels, SphereFacingInwardsIsDarkFromOutside) {
    lightFromViewer();
    cSphere3D s;
    s.set(0.8f, 32, 16, GLU_FILL, GLU_SMOOTH, GLU_INSIDE);
    s.draw(context);
    EXPECT_TRUE(canvas.at(0.02f, 0.02f).black());
}

TEST_F(NodePixels, CylinderFromTheSide) {
    glRotatef(-90, 1, 0, 0);  // the cylinder's +z axis points up the picture
    cCylinder3D c;
    c.set(0.9f, 0.4f, 0.0f, FALSE, FALSE, 24, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    c.draw(context);
    EXPECT_TRUE(canvas.at(0, 0.1f).lit());
    EXPECT_TRUE(canvas.at(0.3f, 0.05f).lit());
    EXPECT_TRUE(canvas.at(0.3f, 0.8f).black());  // the cone narrows towards the top
    EXPECT_TRUE(canvas.at(0, 0.7f).lit());
    EXPECT_TRUE(canvas.at(0, 0.95f).black());
    EXPECT_TRUE(canvas.at(0, -0.05f).black());
    EXPECT_TRUE(canvas.at(0.45f, 0.05f).black());
}

// Seen along the axis with culling on, only a cap that faces the viewer shows.
TEST_F(NodePixels, CylinderCapsFaceOutwards) {
    struct View {
        float turn;       // about x: 0 looks at the top end, 180 at the bottom end
        bool bottom, top; // caps asked for
        bool seen;
    };
    const View views[] = {{0, false, true, true},  {0, true, false, false},
                          {180, true, false, true}, {180, false, true, false},
                          {0, false, false, false}};
    for (const View& v : views) {
        canvas.reset();
        glEnable(GL_CULL_FACE);
        glRotatef(v.turn, 1, 0, 0);
        cCylinder3D c;
        c.set(0.5f, 0.6f, 0.6f, v.bottom, v.top, 24, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
        c.draw(context);
        EXPECT_EQ(v.seen, canvas.at(0.1f, 0.1f).lit())
            << "turn " << v.turn << " bottom " << v.bottom << " top " << v.top;
    }
}

TEST_F(NodePixels, CylinderEditedToNoCapsIsAnOpenTube) {
    glEnable(GL_CULL_FACE);
    cCylinder3D c;
    c.set(0.5f, 0.6f, 0.6f, TRUE, TRUE, 24, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    c.draw(context);
    ASSERT_TRUE(canvas.at(0.1f, 0.1f).lit());
    canvas.reset();
    glEnable(GL_CULL_FACE);
    c.set(0.5f, 0.6f, 0.6f, FALSE, FALSE, 24, 1, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    c.draw(context);
    EXPECT_TRUE(canvas.at(0.1f, 0.1f).black());
}

TEST_F(NodePixels, DiskWithAHole) {
    cDisk3D d;
    d.set(0.2f, 0.6f, 32, 2, 0, 360, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);
    d.draw(context);
    EXPECT_TRUE(canvas.at(0.02f, 0.02f).black());
    EXPECT_TRUE(canvas.at(0.4f, 0).lit());
    EXPECT_TRUE(canvas.at(0, -0.4f).lit());
    EXPECT_TRUE(canvas.at(-0.28f, 0.28f).lit());
    EXPECT_TRUE(canvas.at(0.7f, 0).black());
}

TEST_F(NodePixels, PartialDiskCoversItsSweep) {
    cDisk3D d;
    d.set(0, 0.8f, 32, 1, 0, 90, GLU_FILL, GLU_SMOOTH, GLU_OUTSIDE);  // +y round to +x
    d.draw(context);
    EXPECT_TRUE(canvas.at(0.3f, 0.3f).lit());
    EXPECT_TRUE(canvas.at(-0.3f, 0.3f).black());
    EXPECT_TRUE(canvas.at(0.3f, -0.3f).black());
    EXPECT_TRUE(canvas.at(-0.3f, -0.3f).black());
}

TEST_F(NodePixels, QuadPrimitiveIsNotTwisted) {
    const float pts[] = {-0.5f, -0.5f, 0, 0.5f, -0.5f, 0, -0.5f, 0.5f, 0, 0.5f, 0.5f, 0};
    cPrimitive3D p;
    p.set(GL_QUADS, pts, 4);
    p.draw(context);
    for (const auto& xy : {std::make_pair(-0.4f, 0.0f), std::make_pair(0.4f, 0.0f),
                           std::make_pair(0.0f, -0.4f), std::make_pair(0.0f, 0.4f)})
        EXPECT_TRUE(canvas.at(xy.first, xy.second).lit()) << xy.first << "," << xy.second;
}

TEST_F(NodePixels, BackFacesStayCulledAfterATriangle) {
    cTetragon3D back;  // clockwise as seen by the viewer
    back.set(-0.5f, -0.5f, 0, -0.5f, 0.5f, 0, 0.5f, 0.5f, 0, 0.5f, -0.5f, 0);
    back.draw(context);
    ASSERT_TRUE(canvas.at(0, 0).lit());

    canvas.reset();
    cTriangle3D corner;
    corner.set(0.8f, 0.8f, 0, 0.9f, 0.8f, 0, 0.9f, 0.9f, 0);
    corner.draw(context);
    back.draw(context);
    EXPECT_TRUE(canvas.at(0, 0).black());
    back.draw(context);  // still culled on the next drawing
    EXPECT_TRUE(canvas.at(0, 0).black());
}

TEST_F(NodePixels, DisablingTheCullSwitchShowsBackFacesAgain) {
    cScene scene;
    cScene* saved = CURRENT_SCENE;
    CURRENT_SCENE = &scene;
    cTriangle3D corner;
    corner.set(0.8f, 0.8f, 0, 0.9f, 0.8f, 0, 0.9f, 0.9f, 0);
    cEnable3D noCull;
    noCull.set(TS_SWITCH_CULL_FACE, 0);
    cTetragon3D back;
    back.set(-0.5f, -0.5f, 0, -0.5f, 0.5f, 0, 0.5f, 0.5f, 0, 0.5f, -0.5f, 0);
    corner.draw(context);
    noCull.draw(context);
    back.draw(context);
    CURRENT_SCENE = saved;
    EXPECT_TRUE(canvas.at(0, 0).lit());
    EXPECT_EQ(0, scene.enableCull);
}

TEST_F(NodePixels, ColourSetInAGroupStaysForTheNodesAfterIt) {
    int has3D = 0, has2D = 0;
    const SceneContentFlags flags{&has3D, &has2D};
    cGroup root(nullptr);
    auto* inner = new cGroup(&root);
    root.add(inner, flags);
    auto* red = new cColor3D();
    red->set(1, 0, 0);
    inner->add(red, flags);
    auto* box = new cBox3D();
    box->set(-0.5f, -0.5f, -0.5f, 0.5f, 0.5f, 0.5f, GLU_OUTSIDE);
    root.add(box, flags);
    glColor3f(1, 1, 1);
    root.draw(context);
    const tst::Pixel c = canvas.at(0, 0);
    EXPECT_GT(c.r, 240);
    EXPECT_LT(c.g, 16);
    EXPECT_LT(c.b, 16);
}

}  // namespace
