// SPDX-License-Identifier: Zlib
// assets/track/Stops.h: what stops a car at each model. A thing with collision spheres of its own is pushed, turned and
// tipped over when it is hit, whatever its mass, and pushes the car away from its own origin. So only what may fall
// over has spheres in its model; for what stands firm the map puts invisible round guards where its Stops are.
#pragma once
#include <string>
#include <vector>

namespace assets::track
{
// A circle on the ground in the model's own axes, world units.
struct Stop
{
    double X = 0, Z = 0, R = 1;
};

// None for what a car may drive through, what has spheres of its own, and models of unknown names. The stops of one
// model do not touch, nor do those of its neighbours in a row, but for the columns that two bays of a gallery share.
std::vector<Stop> StopsOf(const std::string& model);
}
