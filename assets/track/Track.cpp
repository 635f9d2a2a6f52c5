// SPDX-License-Identifier: Zlib
#include "assets/track/Track.h"

#include "assets/common/Bitmap.h"
#include "assets/track/Backdrop.h"
#include "assets/track/Ground.h"
#include "assets/track/MapScript.h"
#include "assets/track/Models.h"
#include "assets/track/Sky.h"
#include "assets/track/WallEnds.h"

namespace assets::track
{
void BuildTrack(const std::string& root)
{
    const Plan plan = MakePlan();
    const std::string map = root + "/data/maps/map_01";
    WriteSky(root + "/data/images/sky.bmp");
    WriteMap(plan, map);
    const ModelFolder models(root + "/data/models/world");
    WriteHouses(models);
    WriteRowhouses(models);
    WriteGallery(models);
    WriteGate(models);
    WriteTrees(models);
    WriteHedge(models);
    WriteShelter(models);
    WriteStraight(models);
    WriteRoadside(models);
    WriteBoards(models);
    WriteWaterside(models);
    WriteWallEnd(models);
    WriteBackdrop(models, plan);
    WriteBmp(map + "/ground.bmp", PaintGround(plan), Black::Keep);
}
}
