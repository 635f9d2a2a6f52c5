// SPDX-License-Identifier: Zlib
#include "tools/race/Trace.h"

#include "tools/race/Format.h"

namespace race
{
void Trace::Take(const std::vector<CarState>& cars)
{
    ++Tick;
    for (std::size_t i = 0; i < cars.size(); ++i)
    {
        const CarState& car = cars[i];
        Rows += std::to_string(Tick) + ',' + std::to_string(i) + ',' + Fixed(car.X, 3) + ',' + Fixed(car.Z, 3) + ',' +
                Fixed(car.Speed, 4) + ',' + Fixed(car.Heading, 4) + ',' + Fixed(car.Damage, 4) + '\n';
    }
}

std::string Trace::Csv() const
{
    return "tick,car,x,z,speed,heading,damage\n" + Rows;
}
}
