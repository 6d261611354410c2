#include "pictures/bmp/stored_rows.h"

#include <algorithm>

namespace vistrel::bmp {

StoredRows::StoredRows(const pictures::PictureFile& file, const BmpHeader& header)
    : file_(file),
      offset_(header.pixelOffset),
      rowBytes_(header.RowBytes()),
      height_(header.height),
      topDown_(header.topDown),
      rowsAtOnce_(std::max<std::size_t>(kBytesAtOnce / rowBytes_, 1)),
      held_(rowsAtOnce_ * rowBytes_) {}

const std::uint8_t* StoredRows::Row(int y) {
    const std::size_t stored = topDown_ ? y : height_ - 1 - y;
    const std::size_t first = stored / rowsAtOnce_ * rowsAtOnce_;
    if (firstHeld_ != first) {
        file_.Copy(offset_ + first * rowBytes_, held_);
        firstHeld_ = first;
    }
    return &held_[(stored - first) * rowBytes_];
}

}  // namespace vistrel::bmp
