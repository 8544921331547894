// One full wall take-off (every query the wall screen, the summary and the report ask) over a
// spread of walls: all block sizes, corners, angles and Ts, half, cut and extender courses,
// special courses, calora layers and openings. One iteration is one take-off.
#include "calc/ZOLWallData.h"
#include "model/ZOLOpenings.h"
#include "model/ZOLWall.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

std::vector<ZOLWall> sampleWalls() {
    std::vector<ZOLWall> walls;
    const auto& sizes = ZOLWallData::kBlockSizes;
    for (int i = 0; i < 40; ++i) {
        ZOLWall w;
        w.setBlockSize(sizes[static_cast<std::size_t>(i) % sizes.size()]);
        w.setWallHeight(1.334 * (3 + i % 20));
        w.setWallLength(40.0 + 17.5 * i);
        w.setInsideCornerLocations(i % 4);
        w.setOutsideCornerLocations(4 + i % 6);
        w.setAngleLocations(i % 3);
        w.setTBlockLocations(i % 2);
        w.setLinearFeetCorbel(i % 4 == 0 ? 20.0 : 0.0);
        w.setLinearFeetCurb(i % 5 == 2 ? 30.0 : 0.0);
        w.setCurbCornerLocations(i % 5 == 2 ? 2 : 0);
        w.setLinearFeetTapered(i % 7 == 0 ? 12.0 : 0.0);
        w.setLinearFeetRadius(i % 5 == 1 ? 26.6 : 0.0);
        w.setUseHalfBlock(i % 2 == 0);
        w.setUseCutBlock(i % 3 == 0);
        w.setUseExtenders(i % 4 == 1);
        w.setCaloraStickLayers(i % 4);
        w.setPelmoBrickHeight(i % 6 == 0 ? 2.0 : 0.0);
        w.setPelmoBrickLength(i % 6 == 0 ? 40.0 : 0.0);
        w.setPelmoPerBlock(2 + i % 2);
        w.setStraightBlockAdded(i % 5);
        w.setCornerBlockAdded(i % 3);
        ZOLOpenings openings;
        for (int k = 0; k < i % 4; ++k) {
            auto o = std::make_shared<ZOLOpening>();
            o->setNumberOfOpenings(1 + k);
            o->setOpeningWidth(36.0 + 12 * k);
            o->setOpeningHeight(48.0 + 16 * k);
            o->setUseSill(k % 2 == 0);
            openings.addOpeningObject(o);
        }
        w.setSqftOpenings(openings.getTotalSquareFeet());
        w.setLinearFeetBuck(openings.getTotalLinearFeetOfBuck());
        walls.push_back(w);
    }
    return walls;
}

double takeOff(const ZOLWall& w) {
    double sum = w.getTotalWallHeight() + w.getRows() + w.getLinearFeetOfStraightBlock() +
                 w.getLinearFeetOfInsideCorners() + w.getLinearFeetOfOutsideCorners() +
                 w.getLinearFeetOfAngles() + w.getLinearFeetOfTBlock() +
                 w.getOpeningsInBlockCount() + w.getGrossSqFtOfWall() + w.getNetSqFtOfWall();
    sum += w.getStraightBlocks() + w.getStraightHalfBlocks() + w.getStraightCutBlocks() +
           w.getCornerBlocks() + w.getCornerHalfBlocks() + w.getCornerCutBlocks() +
           w.getAngleBlocks() + w.getTBlocks() + w.getStraightCurbBlocks() +
           w.getCornerCurbBlocks() + w.getCorbelBlocks() + w.getTaperedBlocks() +
           w.getRadiusBlocks() + w.getZolBuck() + w.getExtenders() + w.getHVClips() +
           w.getCaloraSticks() + w.getCaloraStickBundles() + w.getCaloraStickWeight() +
           w.getPravexes() + w.getPelmos();
    sum += w.getTrucks() + w.getConcreteYards() + w.getConcreteMeters() + w.getBracing() +
           w.getLinearFeetRebar() + w.getTotalPartsWeight();
    for (int32_t type = 0; type < ZOLWallData::kPartTypeCount; ++type)
        sum += w.getPartCountWithPartType(type) +
               w.getPartCountRoundedToFullBundlesWithPartType(type) +
               w.getTotalBundlesWithPartType(type) +
               w.getApproximateWeightWithPartType(type, false) +
               w.getApproximateWeightWithPartType(type, true);
    return sum;
}

void BM_WallTakeOff(benchmark::State& state) {
    const std::vector<ZOLWall> walls = sampleWalls();
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(takeOff(walls[next]));
        next = next + 1 == walls.size() ? 0 : next + 1;
    }
    state.SetItemsProcessed(state.iterations());
    state.SetLabel("one iteration = one full take-off");
}
BENCHMARK(BM_WallTakeOff);

} // namespace

BENCHMARK_MAIN();
