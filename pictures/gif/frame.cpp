// An interlaced frame has every eighth row first, then those in the middle between them, and so on:
// its rows in order come from four places of its data, each with a decoder of its own.
#include "pictures/gif/frame.h"

#include <algorithm>

namespace vistrel::gif {
namespace {

constexpr int kFirst[] = {0, 4, 2, 1};
constexpr int kStep[] = {8, 8, 4, 2};

int RowsOfPass(int pass, int height) {
    return std::max(0, (height - kFirst[pass] + kStep[pass] - 1) / kStep[pass]);
}

int PassOfRow(int y) {
    if (y % 8 == 0) return 0;
    if (y % 4 == 0) return 1;
    return y % 2 == 0 ? 2 : 3;
}

}  // namespace

GifFrameRows::GifFrameRows(const GifFrame& frame, const GifLzw& decoder)
    : frame_(frame), colors_(frame.width) {
    decoders_.reserve(4);
    decoders_.push_back(decoder);
    for (int pass = 0; frame.interlaced && pass < 3; ++pass) {
        decoders_.push_back(decoders_.back());
        decoders_.back().Skip(std::size_t(RowsOfPass(pass, frame.height)) * frame.width);
    }
}

GifLzw& GifFrameRows::DecoderOfNext() { return decoders_[frame_.interlaced ? PassOfRow(y_) : 0]; }

void GifFrameRows::DrawNext(std::uint8_t* rgb, int screenWidth) {
    const std::size_t read = DecoderOfNext().Read(colors_.data(), colors_.size());
    ++y_;
    const std::size_t room = std::max(0, screenWidth - frame_.left);
    const std::size_t count = std::min(read, room);
    rgb += std::size_t{3} * frame_.left;
    for (std::size_t x = 0; x < count; ++x, rgb += 3) {
        const GifColor color = colors_[x];
        if (color != frame_.transparent) std::copy_n(frame_.palette[color].begin(), 3, rgb);
    }
}

}  // namespace vistrel::gif
