// SPDX-License-Identifier: Zlib
#include "console/Texts.h"

#include <algorithm>
#include <iterator>

namespace console
{
namespace
{
constexpr Topic ObjectTopics[] = {
    {"userplayer", "Giocatore controllato dall'utente"},
    {"player",
     "MaxSpeed\tVelocità massima\r\n"
     "MaxSpeedR\tVelocità massima retromarcia\r\n"
     "Acceleration\tAccelerazione\r\n"
     "Brake\tDecelerazione frenata\r\n"
     "Deceleration\tDecelerazione attrito\r\n"
     "WRS\tFattore di sterzata\r\n"
     "Damage\tDanno\r\n"
     "Control\tControllo user/cpu\r\n"
     "Position\tPosizione (x z)\r\n"
     "Speed\tVelocità (sola lettura)",
     8},
    {"camera",
     "MinZoom\tZoom minimo\r\n"
     "Zoom\tZoom corrente\r\n"
     "Radius\tDistanza dall'oggetto osservato\r\n"
     "Target\tGiocatore osservato\r\n"
     "TxtFilter\tFiltro texture",
     5},
    {"game", "Time\tTempo di gioco in millisecondi", 1},
};

constexpr Topic CommandTopics[] = {
    {"set", "SET oggetto prop valore\r\n\r\nimposta il valore di prop di oggetto"},
    {"get", "GET oggetto prop\r\n\r\nvisualizza il valore di prop di oggetto"},
    {"lst", "LST [oggetto]\r\n\r\nvisualizza gli oggetti o le proprietà di oggetto"},
    {"inf", "INF\r\n\r\nvisualizza/nasconde informazioni"},
};

template <std::size_t N> const Topic* Find(const Topic (&topics)[N], std::string_view word)
{
    const Topic* found = std::find_if(topics, topics + N, [&](const Topic& topic) { return topic.Word == word; });
    return found == topics + N ? nullptr : found;
}
}

const Topic* FindObject(std::string_view word)
{
    return Find(ObjectTopics, word);
}

const Topic* FindCommand(std::string_view word)
{
    return Find(CommandTopics, word);
}
}
