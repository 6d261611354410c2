// The way of a JPEG file to a screen file, ours and by other libraries, step by step.
#pragma once

#include <string>

namespace vistrel::bench {

/// Processor times in milliseconds, each the smallest of several.
struct WholeWayTimes {
    double decodingOurs;   ///< file in memory to 320 x 400 pixels
    double decodingTwice;  ///< libjpeg-turbo alone, at least twice the screen's size
    double decodingWhole;  ///< the same, but at most the picture's own size
    double wholeOurs;      ///< file to file
    double wholeTheirs;
};

/// Converts `source` to `target` both ways, `times` times in turn after a warm-up. Theirs is
/// libjpeg-turbo decoding at the smallest scale (in eighths) that gives at least twice the screen's
/// size, at most the picture's own; Lanczos scaling (ours, the quickest at hand); libimagequant at
/// speed 4, dithered; our writing of the file.
WholeWayTimes MeasureWholeWay(const std::string& source, const std::string& target, int times);

}  // namespace vistrel::bench
