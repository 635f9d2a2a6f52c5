#include "cars/Cars.h"
#include "cars/Body.h"

namespace assets
{
void BuildCars(const std::string& root)
{
    for (const Design& design : Designs())
    {
        const std::string folder = root + "/data/models/" + design.Folder;
        const Car car = BuildCar(design);
        WriteModel(car.Form, folder + "/car.3dm");
        WriteBmp(folder + "/body.bmp", car.Texture, Black::Key);
    }
}
}
