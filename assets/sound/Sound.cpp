#include "sound/Sound.h"
#include "common/Output.h"
#include "sound/Engine.h"
#include "sound/Mp3.h"
#include "sound/Tracks.h"

namespace assets
{
namespace
{
struct Piece
{
    const char* Title; // the game shows the file's name
    sound::Stereo (*Play)();
};
constexpr Piece Pieces[] = {{"Luci sul lago", sound::LuciSulLago},
                            {"Limonata sul molo", sound::LimonataSulMolo},
                            {"Tornanti", sound::Tornanti}};
}

void BuildSound(const std::string& root)
{
    WriteBytes(root + "/data/sounds/engine_01.pcm", sound::EngineLoop());
    int number = 0;
    for (const Piece& piece : Pieces)
        sound::WriteMp3(root + "/soundtracks/" + piece.Title + ".mp3", piece.Play(),
                        {piece.Title, "Velkar Team", "Velkar", ++number});
}
}
