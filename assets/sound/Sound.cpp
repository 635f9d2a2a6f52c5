// SPDX-License-Identifier: Zlib
#include "assets/sound/Sound.h"

#include "assets/common/Output.h"
#include "assets/sound/Engine.h"
#include "assets/sound/Mp3.h"
#include "assets/sound/Tracks.h"

namespace assets::sound
{
namespace
{
struct Piece
{
    const char* Title; // the game shows the file's name
    Stereo (*Play)();
};
constexpr Piece Pieces[] = {{"Luci sul lago", LuciSulLago},
                            {"Limonata sul molo", LimonataSulMolo},
                            {"Tornanti", Tornanti},
                            {"Tarantella a tavoletta", TarantellaATavoletta},
                            {"Ora dorata", OraDorata}};
}

void BuildSound(const std::string& root)
{
    WriteBytes(root + "/data/sounds/engine_01.pcm", EngineLoop());
    int number = 0;
    for (const Piece& piece : Pieces)
        WriteMp3(root + "/soundtracks/" + piece.Title + ".mp3", piece.Play(),
                 {piece.Title, "Velkar Team", "Velkar", ++number});
}
}
