// Screens whose colours move: making them, and writing what is seen of them step by step.
#pragma once

#include "pictures/convert.h"
#include "tools/options.h"

namespace vistrel::tools {

/// Makes a screen file of a picture, with the bars of the options on it. What moves on a screen
/// that is taken as the picture moves on. As for conversions, unless the result is Written, the
/// target is as it was.
pictures::ConversionResult MakeScreenWithBars(const std::string& source, const std::string& target,
                                              const ConvertOptions& options);

/// Writes the first `count` pictures that a screen file shows, one a step, as `out`-01.bmp and so
/// on. NotRead when it is no screen that the system shows.
pictures::ConversionResult WriteFrames(const std::string& source, const std::string& out,
                                       int count);

}  // namespace vistrel::tools
