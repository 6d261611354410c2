// Places and sizes in pixels.
#pragma once

namespace vistrel::controls {

struct Point {
    int x = 0;
    int y = 0;
};

struct Size {
    int width = 0;
    int height = 0;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int right() const { return left + width; }
    int bottom() const { return top + height; }
};

}  // namespace vistrel::controls
