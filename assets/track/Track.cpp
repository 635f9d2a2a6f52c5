#include "track/Track.h"

#include "track/Sky.h"

namespace Assets
{
void BuildTrack(const std::string& root)
{
    WriteSky(root + "/data/images/sky.bmp");
}
}
