// Slow, plain colour reductions that others are measured against.
#pragma once

#include "bench/pictures/metrics.h"

namespace vistrel::bench {

/// 256 colours by k-means on all distinct colours until nothing changes, each pixel the nearest
/// colour: about the highest PSNR there is.
MetricPicture ReduceByKMeans(const MetricPicture& picture);

/// The same palette, with full error diffusion (Floyd and Steinberg 1976), rows in alternating
/// directions.
MetricPicture ReduceByErrorDiffusion(const MetricPicture& picture);

}  // namespace vistrel::bench
