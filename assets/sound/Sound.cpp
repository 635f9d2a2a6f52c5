#include "sound/Sound.h"
#include "common/Output.h"
#include "sound/Engine.h"
#include "sound/Mp3.h"
#include "sound/Tracks.h"

namespace Assets
{
namespace
{
struct Piece
{
    const char* Title; // the game shows the file's name
    Sound::Stereo (*Play)();
};
constexpr Piece Pieces[] = {{"Luci sul lago", Sound::LuciSulLago},
                            {"Limonata sul molo", Sound::LimonataSulMolo},
                            {"Tornanti", Sound::Tornanti}};
}

void BuildSound(const std::string& root)
{
    WriteBytes(root + "/data/sounds/engine_01.pcm", Sound::EngineLoop());
    int number = 0;
    for (const Piece& piece : Pieces)
        Sound::WriteMp3(root + "/soundtracks/" + piece.Title + ".mp3", piece.Play(),
                        {piece.Title, "Velkar Team", "Velkar", ++number});
}
}
