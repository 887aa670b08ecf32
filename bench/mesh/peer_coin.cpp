// Coin3D's per-vertex normals: SoNormalCache::generatePerVertex, what SoIndexedFaceSet
// uses, on the coordinates and the -1-terminated index as they are; and
// SoNormalGenerator fed polygon by polygon.
#include <cstdio>

#include "methods.h"

#ifdef MESH_BENCH_HAVE_COIN
#include <Inventor/SoDB.h>
#include <Inventor/caches/SoNormalCache.h>
#include <Inventor/misc/SoNormalGenerator.h>

namespace meshbench {

namespace {

float radians(float degrees) { return degrees * float(M_PI) / 180.0f; }

class CoinCacheRun : public Run {
public:
    CoinCacheRun(const BenchMesh& m, float degrees) : mesh_(m), radians_(radians(degrees)) {}
    ~CoinCacheRun() override {
        if (cache_ != nullptr) cache_->unref();
    }
    void go() override {
        cache_ = new SoNormalCache(nullptr);
        cache_->ref();
        cache_->generatePerVertex(reinterpret_cast<const SbVec3f*>(mesh_.coords.data()), unsigned(mesh_.coordCount()),
                                  mesh_.index.data(), int(mesh_.index.size()), radians_);
    }

private:
    const BenchMesh& mesh_;
    float radians_;
    SoNormalCache* cache_ = nullptr;
};

class CoinGeneratorRun : public Run {
public:
    CoinGeneratorRun(const BenchMesh& m, float degrees) : mesh_(m), radians_(radians(degrees)) {}
    void go() override {
        generator_.reset(new SoNormalGenerator(TRUE, mesh_.coordCount()));
        const SbVec3f* points = reinterpret_cast<const SbVec3f*>(mesh_.coords.data());
        bool open = false;
        for (int32_t i : mesh_.index) {
            if (!open) generator_->beginPolygon();
            open = i != -1;
            if (open) generator_->polygonVertex(points[i]);
            else generator_->endPolygon();
        }
        generator_->generate(radians_);
    }

private:
    const BenchMesh& mesh_;
    float radians_;
    std::unique_ptr<SoNormalGenerator> generator_;
};

}  // namespace

std::vector<Method> coinMethods() {
    SoDB::init();
    return {
        {"Coin3D SoNormalCache::generatePerVertex",
         [](const BenchMesh& m, float d) { return std::unique_ptr<Run>(new CoinCacheRun(m, d)); }, true},
        {"Coin3D SoNormalGenerator",
         [](const BenchMesh& m, float d) { return std::unique_ptr<Run>(new CoinGeneratorRun(m, d)); }, true},
    };
}

}  // namespace meshbench

#else

namespace meshbench {
std::vector<Method> coinMethods() {
    std::fprintf(stderr, "*** Coin3D was not found when the benchmark was built: its columns are missing. "
                         "Run bench/mesh/install-peers.sh and build again. ***\n");
    return {};
}
}  // namespace meshbench

#endif
