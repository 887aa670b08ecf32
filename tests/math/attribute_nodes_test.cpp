// The attribute and transform nodes in a real context: colour, translate, scale,
// rotate with increment, matrix push and pop, the scene switches and the material.
#include <GL/gl.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "library/globals.h"
#include "math/gl_canvas.h"
#include "math/gl_recorder.h"
#include "support/msgbox_capture.h"
#include "tessarin.h"
#include "tsobj3d/visible/ccolor3d.h"
#include "tsobj3d/visible/cenable3d.h"
#include "tsobj3d/visible/cmaterial3d.h"
#include "tsobj3d/visible/cpopmatrix3d.h"
#include "tsobj3d/visible/cpushmatrix3d.h"
#include "tsobj3d/visible/crotate3d.h"
#include "tsobj3d/visible/cscale3d.h"
#include "tsobj3d/visible/ctranslate3d.h"
#include "view/scene/cscene.h"

namespace {

using Calls = std::vector<std::string>;
using tst::call;

class AttributeNodes : public tst::CanvasTest {
protected:
    tst::GlRecorder recorder;

    Calls draw(cNode& node) {
        recorder.take();
        node.draw(context);
        return recorder.take();
    }
};

TEST_F(AttributeNodes, ColourFromFloatsOrAnArray) {
    cColor3D c;
    c.set(0.1f, 0.2f, 0.3f);
    EXPECT_EQ((Calls{call("glColor3f", 0.1f, 0.2f, 0.3f)}), draw(c));
    const float rgb[3] = {1, 0.5f, 0};
    c.set(rgb);
    EXPECT_EQ((Calls{call("glColor3f", 1.0f, 0.5f, 0.0f)}), draw(c));
}

TEST_F(AttributeNodes, TranslateAndScale) {
    cTranslate3D t;
    t.set(1, -2, 3);
    cScale3D s;
    s.set(2, 4, 0.5f);
    EXPECT_EQ((Calls{call("glTranslatef", 1.0f, -2.0f, 3.0f)}), draw(t));
    EXPECT_EQ((Calls{call("glScalef", 2.0f, 4.0f, 0.5f)}), draw(s));
    float m[16];
    glGetFloatv(GL_MODELVIEW_MATRIX, m);
    EXPECT_FLOAT_EQ(2.0f, m[0]);
    EXPECT_FLOAT_EQ(4.0f, m[5]);
    EXPECT_FLOAT_EQ(0.5f, m[10]);
    EXPECT_FLOAT_EQ(1.0f, m[12]);
    EXPECT_FLOAT_EQ(-2.0f, m[13]);
    EXPECT_FLOAT_EQ(3.0f, m[14]);
}

TEST_F(AttributeNodes, RotateTurnsFurtherOnEveryDrawing) {
    cRotate3D r;
    r.set(0, 0, 0, 1, 5);
    for (float expected : {0.0f, 5.0f, 10.0f, 15.0f}) {
        glLoadIdentity();
        EXPECT_EQ((Calls{call("glRotatef", expected, 0.0f, 0.0f, 1.0f)}), draw(r));
    }
    EXPECT_FLOAT_EQ(20.0f, r.angle);
    // An edit sets a new angle, axis and increment.
    r.set(90, 1, 0, 0, 0);
    EXPECT_EQ((Calls{call("glRotatef", 90.0f, 1.0f, 0.0f, 0.0f)}), draw(r));
    EXPECT_EQ((Calls{call("glRotatef", 90.0f, 1.0f, 0.0f, 0.0f)}), draw(r));
}

TEST_F(AttributeNodes, RotateAngleGrowsWithoutWrapping) {
    cRotate3D r;
    r.set(350, 0, 1, 0, 20);
    draw(r);
    draw(r);
    EXPECT_FLOAT_EQ(390.0f, r.angle);
}

TEST_F(AttributeNodes, PushAndPopMatrix) {
    cPushMatrix3D push;
    cPopMatrix3D pop;
    cTranslate3D t;
    t.set(5, 0, 0);
    EXPECT_EQ((Calls{call("glPushMatrix")}), draw(push));
    draw(t);
    EXPECT_EQ((Calls{call("glPopMatrix")}), draw(pop));
    float m[16];
    glGetFloatv(GL_MODELVIEW_MATRIX, m);
    EXPECT_FLOAT_EQ(0.0f, m[12]);
}

TEST_F(AttributeNodes, UnbalancedPopGoesToOpenGLAsItIs) {
    cPopMatrix3D pop;
    EXPECT_EQ((Calls{call("glPopMatrix")}), draw(pop));
    EXPECT_EQ(static_cast<GLenum>(GL_STACK_UNDERFLOW), glGetError());
}

class SceneSwitches : public AttributeNodes {
protected:
    void SetUp() override {
        AttributeNodes::SetUp();
        saved = CURRENT_SCENE;
        CURRENT_SCENE = &scene;
    }
    void TearDown() override { CURRENT_SCENE = saved; }

    cScene scene;
    cScene* saved = nullptr;
};

TEST_F(SceneSwitches, NewSceneDefaults) {
    EXPECT_EQ(1, scene.enableLighting);
    EXPECT_EQ(1, scene.enableCull);
    EXPECT_EQ(1, scene.enableDepth);
    EXPECT_EQ(1, scene.enableColorMaterial);
    EXPECT_EQ(0, scene.pickingOn);
    EXPECT_EQ(0, scene.forceRedraw);
    EXPECT_EQ(1, scene.mouseNavigation);
    EXPECT_EQ(1, scene.keyNavigation);
    EXPECT_EQ(1, scene.contextMenu);
}

TEST_F(SceneSwitches, EachNumberWritesItsSwitch) {
    int* const fields[9] = {&scene.enableLighting,  &scene.enableCull,
                            &scene.enableDepth,     &scene.enableColorMaterial,
                            &scene.pickingOn,       &scene.forceRedraw,
                            &scene.mouseNavigation, &scene.keyNavigation,
                            &scene.contextMenu};
    for (int n = 1; n <= 9; ++n) {
        cEnable3D e;
        e.set(n, 0);
        e.draw(context);
        EXPECT_EQ(0, *fields[n - 1]) << n;
        e.set(n, 1);
        e.draw(context);
        EXPECT_EQ(1, *fields[n - 1]) << n;
    }
}

TEST_F(SceneSwitches, OnlyCullingTakesEffectInOpenGLAtOnce) {
    for (int n = 1; n <= 9; ++n) {
        cEnable3D e;
        e.set(n, n % 2);
        const Calls calls = draw(e);
        if (n == TS_SWITCH_CULL_FACE) {
            EXPECT_EQ((Calls{call("glDisable", GL_CULL_FACE)}), calls);
        } else {
            EXPECT_TRUE(calls.empty()) << n;
        }
    }
    cEnable3D on;
    on.set(TS_SWITCH_CULL_FACE, 1);
    EXPECT_EQ((Calls{call("glEnable", GL_CULL_FACE)}), draw(on));
    EXPECT_TRUE(glIsEnabled(GL_CULL_FACE));
}

TEST_F(SceneSwitches, UnknownNumbersAreStoredAndIgnored) {
    cEnable3D e;
    e.set(10, 0);
    EXPECT_EQ(10, e.switchNumber);
    EXPECT_TRUE(draw(e).empty());
    e.set(0, 0);
    EXPECT_TRUE(draw(e).empty());
    EXPECT_EQ(1, scene.enableLighting);
    EXPECT_EQ(1, scene.contextMenu);
}

TEST_F(SceneSwitches, TheCurrentSceneIsWrittenNotTheOneDrawn) {
    cScene drawn;
    ts::SceneDrawContext drawing(drawn);
    cEnable3D e;
    e.set(TS_SWITCH_DEPTH_TEST, 0);
    e.draw(drawing);
    EXPECT_EQ(0, scene.enableDepth);
    EXPECT_EQ(1, drawn.enableDepth);
}

TEST_F(SceneSwitches, WithoutACurrentSceneNothingHappens) {
    CURRENT_SCENE = nullptr;
    cEnable3D e;
    e.set(TS_SWITCH_CULL_FACE, 1);
    EXPECT_TRUE(draw(e).empty());
}

std::string materialCall(GLenum face, GLenum name, const char* values) {
    return "glMaterialfv(" + std::to_string(face) + "," + std::to_string(name) + "," + values +
           ")";
}

TEST_F(AttributeNodes, MaterialDefaults) {
    cMaterial3D m(GL_FRONT, nullptr, nullptr, nullptr, 20);
    EXPECT_EQ((Calls{materialCall(GL_FRONT, GL_AMBIENT, "0,0,0,0"),
                     materialCall(GL_FRONT, GL_DIFFUSE, "0,0,0,0"),
                     materialCall(GL_FRONT, GL_SPECULAR, "0.5,0.5,0.5,1"),
                     call("glMateriali", GL_FRONT, GL_SHININESS, 20)}),
              draw(m));
}

TEST_F(AttributeNodes, MaterialColoursAreCopied) {
    const float a[4] = {0.1f, 0.2f, 0.3f, 0.4f}, d[4] = {0.5f, 0.6f, 0.7f, 0.8f},
                s[4] = {0.9f, 1.0f, 0.0f, 1.0f};
    cMaterial3D m(GL_FRONT_AND_BACK, a, d, s, 128);
    m.draw(context);
    float got[4];
    glGetMaterialfv(GL_FRONT, GL_AMBIENT, got);
    EXPECT_FLOAT_EQ(0.3f, got[2]);
    glGetMaterialfv(GL_BACK, GL_DIFFUSE, got);
    EXPECT_FLOAT_EQ(0.8f, got[3]);
    glGetMaterialfv(GL_FRONT, GL_SPECULAR, got);
    EXPECT_FLOAT_EQ(0.9f, got[0]);
    glGetMaterialfv(GL_FRONT, GL_SHININESS, got);
    EXPECT_FLOAT_EQ(128.0f, got[0]);
}

TEST_F(AttributeNodes, ShininessOutOfRangeIsReportedOnEveryDrawing) {
    cMaterial3D good(GL_FRONT, nullptr, nullptr, nullptr, 32);
    good.draw(context);
    tst::MessageBoxCapture capture(IDOK);
    for (int shine : {129, -1}) {
        cMaterial3D bad(GL_FRONT, nullptr, nullptr, nullptr, shine);
        const Calls first = draw(bad);
        const Calls second = draw(bad);
        EXPECT_EQ(3u, first.size());
        EXPECT_EQ(first, second);
        float got[4];
        glGetMaterialfv(GL_FRONT, GL_SHININESS, got);
        EXPECT_FLOAT_EQ(32.0f, got[0]);
    }
    ASSERT_TRUE(capture.waitFor(4));
    const auto boxes = capture.boxes();
    ASSERT_EQ(4u, boxes.size());
    for (const auto& box : boxes) {
        EXPECT_EQ("Tessarin Error Message", box.title);
        EXPECT_EQ("Shine exponent has to be between 0 and 128 !", box.text);
        EXPECT_EQ(static_cast<unsigned>(MB_SETFOREGROUND), static_cast<unsigned>(box.style));
    }
}

}  // namespace
