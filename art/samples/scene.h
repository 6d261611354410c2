// The sample screens: what is painted on them.
#pragma once

#include "art/brush/painting.h"

namespace vistrel::samples {

using namespace vistrel::art;

/// Which of a set's three screens is painted.
enum class Screen { Startup, Wait, Shutdown };

/// Screens are painted on 640 x 480 units, the shape in which a monitor shows them.
inline constexpr double kWidth = 640;
inline constexpr double kHeight = 480;

using Scene = void (*)(Painting& painting, Screen screen);

void NightSky(Painting& painting, Screen screen);
void GreenHills(Painting& painting, Screen screen);
void Typewriter(Painting& painting, Screen screen);
void Weave(Painting& painting, Screen screen);
void SunnyDay(Painting& painting, Screen screen);
void DeepSea(Painting& painting, Screen screen);
void CityLights(Painting& painting, Screen screen);
void Sunrise(Painting& painting, Screen screen);
void Circuit(Painting& painting, Screen screen);
void Marbles(Painting& painting, Screen screen);

/// The wait and shutdown screens that single-logo sets share.
void Shared(Painting& painting, Screen screen);

/// The screens that a fresh machine has installed.
void CompassRose(Painting& painting, Screen screen);

/// Pictures to try the editor with, painted on whatever size the painting has.
void Balloons(Painting& painting);
void Tulips(Painting& painting);
void StainedGlass(Painting& painting);
void Lighthouse(Painting& painting);

}  // namespace vistrel::samples
