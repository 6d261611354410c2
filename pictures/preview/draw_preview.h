// Draws picture files into picture boxes (the module `Grafica`: graphics). Nothing here shows a
// message: a picture that cannot be read leaves an empty box.
#pragma once

#include <cstdint>
#include <string>

#include "controls/picture_box.h"
#include "pictures/rgb_picture.h"

namespace vistrel::preview {

/// Draws a picture stretched over the whole of `target` and gives its size in pixels and its colour
/// depth: that of its format (formats.h), or the header's for bitmaps and anything else (as
/// ReadBitmapHeader tells, except of OS/2 1.x bitmaps that can be drawn). What cannot be read
/// leaves width and height as they were.
void DrawPreview(const std::string& path, controls::PictureBox& target, std::int32_t& width,
                 std::int32_t& height, std::int16_t& depth);

/// The same when only the drawing is needed.
void DrawPreview(const std::string& path, controls::PictureBox& target);

/// Draws a picture that is in memory over the whole of `target`; it need not be of its size.
void DrawPicture(const pictures::RgbPicture& picture, controls::PictureBox& target);

/// Shows a picture at its own size, a photograph upright: makes the box's drawing area as large as
/// the picture. What cannot be read leaves an empty box.
void ShowPictureInBox(const std::string& path, controls::PictureBox& box);

/// Reads width, height and bits per pixel from a bitmap file's header (offsets 18, 22 and 28). A
/// missing or short file leaves them as they were.
void ReadBitmapHeader(const std::string& path, std::int32_t& width, std::int32_t& height,
                      std::int16_t& depth);

}  // namespace vistrel::preview
