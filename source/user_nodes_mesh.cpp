// Exports of the mesh nodes: snIndexedFaceSet and snElevationGrid, their pointer probes
// first, then create-or-edit under the catch-all.
#include "guard/guard.h"
#include "tessarin.h"
#include "tsobj3d/create_or_edit.h"
#include "tsobj3d/visible/celevationgrid3d.h"
#include "tsobj3d/visible/cindexedfaceset3d.h"

extern "C" {

TS_API cNode* snIndexedFaceSet(cNode* Node, const float* Coord, int CoordCount, const int* CoordIndex,
                               int CoordIndexCount, float CreaseAngle, BOOL Solid, BOOL ColorPerVertex,
                               const float* Color, int ColorCount, const int* ColorIndex, int ColorIndexCount,
                               BOOL NormalPerVertex, const float* Normal, int NormalCount, const int* NormalIndex,
                               int NormalIndexCount) {
    ts::probe(Coord, "snIndexedFaceSet(Coord)");
    ts::probe(CoordIndex, "snIndexedFaceSet(CoordIndex)");
    return ts::guarded("snIndexedFaceSet", [&] {
        ts::mesh::FaceSetArgs args;
        args.coord = Coord;
        args.coordCount = CoordCount;
        args.coordIndex = CoordIndex;
        args.coordIndexCount = CoordIndexCount;
        args.colorPerVertex = ColorPerVertex;
        args.color = Color;
        args.colorCount = ColorCount;
        args.colorIndex = ColorIndex;
        args.colorIndexCount = ColorIndexCount;
        args.normalPerVertex = NormalPerVertex;
        args.normal = Normal;
        args.normalCount = NormalCount;
        args.normalIndex = NormalIndex;
        args.normalIndexCount = NormalIndexCount;
        return ts::createOrEdit<cIndexedFaceSet3D>(Node, args, CreaseAngle, Solid);
    });
}

// The catch-all's label is spelled as applications have always seen it.
TS_API cNode* snElevationGrid(cNode* Node, int xDimension, int zDimension, float xSpacing, float zSpacing,
                              const float* Height, float CreaseAngle, BOOL Solid, BOOL ColorPerVertex,
                              const float* Color, BOOL NormalPerVertex, const float* Normal) {
    ts::probe(Height, "snElevationGrid(Height)");
    return ts::guarded("snEvaluationGrid", [&] {
        ts::mesh::GridArgs args;
        args.xDimension = xDimension;
        args.zDimension = zDimension;
        args.xSpacing = xSpacing;
        args.zSpacing = zSpacing;
        args.height = Height;
        args.colorPerVertex = ColorPerVertex;
        args.color = Color;
        args.normalPerVertex = NormalPerVertex;
        args.normal = Normal;
        return ts::createOrEdit<cElevationGrid3D>(Node, args, CreaseAngle, Solid);
    });
}

}  // extern "C"
