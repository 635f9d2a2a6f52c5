// SPDX-License-Identifier: Zlib
#include "assets/cars/Cars.h"

#include "assets/cars/Body.h"
#include "assets/common/Bitmap.h"

namespace assets::cars
{
void BuildCars(const std::string& root)
{
    for (const Design& design : Designs())
    {
        const std::string folder = root + "/data/models/" + design.Folder;
        const Car car = BuildCar(design);
        WriteModel(GameModel(design, car), folder + "/car.3dm");
        WriteBmp(folder + "/body.bmp", car.Texture, Black::Key);
    }
}
}
