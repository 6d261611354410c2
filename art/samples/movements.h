// What moves on the sample sets' startup screens.
#pragma once

#include "pictures/screen/moving_screen.h"

namespace vistrel::samples {

/// Each gives a picture its colours that move, and where they do.
void Twinkle(screen::MovingPicture& nightSky);
void LightWindows(screen::MovingPicture& cityLights);
void TurnRays(screen::MovingPicture& sunnyDay);
void MoveWater(screen::MovingPicture& deepSea);

}  // namespace vistrel::samples
