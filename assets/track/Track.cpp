#include "track/Track.h"

#include "track/Ground.h"
#include "track/MapScript.h"
#include "track/Models.h"
#include "track/Sky.h"

namespace assets
{
void BuildTrack(const std::string& root)
{
    const Plan plan = MakePlan();
    const std::string map = root + "/data/maps/map_01";
    WriteSky(root + "/data/images/sky.bmp");
    WriteMap(plan, map);
    const ModelFolder models(root + "/data/models/world");
    WriteHouses(models);
    WriteTrees(models);
    WriteStraight(models);
    WriteRoadside(models);
    WriteWaterside(models);
    WriteBmp(map + "/ground.bmp", PaintGround(plan), Black::Keep);
}
}
