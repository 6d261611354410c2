// The skeletons of the letters, as lines and arcs.
#pragma once

namespace vistrel::art {

/// A letter in a box whose baseline is y 0 and whose capitals reach y 10; y grows upwards.
/// `path` is a row of commands: M x y starts a line, L x y goes on straight, O cx cy rx ry a b goes
/// along an ellipse from angle a to b, in degrees against the clock from the right, joined to the
/// line before unless M or the path's begin comes first.
struct Skeleton {
    char letter;
    double width;
    const char* path;
};

/// The skeleton of a letter, or a null pointer for what has none.
const Skeleton* SkeletonOf(char letter);

}  // namespace vistrel::art
