// SPDX-License-Identifier: Zlib
// assets/cars/Cars.h: the eight cars of the race.
#pragma once
#include <string>

namespace assets::cars
{
// Writes data/models/car_1 … car_8 below `root`, each car.3dm with its texture body.bmp.
// Throws std::runtime_error when a file cannot be written.
void BuildCars(const std::string& root);
}
