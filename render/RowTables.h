// SPDX-License-Identifier: Zlib
// render/RowTables.h: what the ground pass knows of whole rows and columns, found once a frame. All pixels of a screen
// row see the plane y = 0 under one angle, and so at one distance ahead:
//
//     eye o- - - - - - - - - - - - - - -   level
//         |  .  row angle
//         |     .                          row angle       radians, of the row's ray against the level, upward positive
//  CamY   |        .  row slant            row slant       world units along the ray, from the eye to the ground
//         |           .                    row distance    world units along the ground, from below the eye to there
//         |              .
//     ----+-----------------*-----------   the plane y = 0
//           row distance
//
// How far to the side a pixel of the row lies is its column's slope times the row slant.
#pragma once
#include "render/Camera.h"
#include "render/Screen.h"

namespace render
{
// Radians. A row whose angle is below it looks down at the ground; all others, and those of no number, show the sky.
inline constexpr double HorizonAngle = -0.01;

inline bool IsSkyAngle(double rowAngle)
{
    return !(rowAngle < HorizonAngle);
}

// Reads the yaw and writes SkyOffset: the panorama scrolls against the turning camera. 0 for a yaw of no number.
void UpdateSkyOffset(const Camera& camera, Screen& screen);

// Reads height, pitch and zoom and writes RowAngle of every row; of the rows that look at the ground also RowSlant,
// RowDist and the table of the present filter: BlurWeight or TapCount. Sky rows keep the old entries, and so does the
// table of a filter that is not in use.
void UpdateRowTables(const Camera& camera, Screen& screen);

// Reads the zoom and writes ColumnSlope of every column.
void UpdateColumnSlopes(const Camera& camera, Screen& screen);
}
