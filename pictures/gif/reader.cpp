// Finds the first picture in a GIF file and decodes it.
#include "pictures/gif/reader.h"

#include <algorithm>

#include "pictures/enough_bytes.h"
#include "pictures/gif/frame.h"
#include "pictures/little_endian.h"

namespace vistrel::gif {

namespace {

using Color = std::array<std::uint8_t, 3>;

constexpr Color kWhite = {255, 255, 255};
constexpr std::size_t kScreenHeader = 13;  // signature and logical screen descriptor
constexpr std::size_t kFrameHeader = 9;    // image descriptor behind its first byte

// The first byte of a block.
constexpr std::uint8_t kExtension = 0x21;
constexpr std::uint8_t kFrameBlock = 0x2C;
constexpr std::uint8_t kTrailer = 0x3B;

// The kinds of extension that matter here.
constexpr std::uint8_t kGraphicControl = 0xF9;
constexpr std::uint8_t kPlainText = 0x01;

// Codes have up to 12 bits and stand for up to 4,093 pixels: three bytes give twice as many.
constexpr std::int64_t kMostPixelsInAByte = 2729;

// The picture over its screen.
class GifRows : public pictures::PictureRows {
 public:
    GifRows(int width, int height, const GifFrame& frame, const Color& ground,
            const GifLzw& decoder)
        : pictures::PictureRows(width, height),
          frame_(frame),
          ground_(ground),
          rows_(frame_, decoder) {}

    void ReadNext(std::uint8_t* rgb) override {
        for (int x = 0; x < width(); ++x) std::copy_n(ground_.begin(), 3, rgb + 3 * x);
        if (y_ >= frame_.top && y_ - frame_.top < frame_.height) rows_.DrawNext(rgb, width());
        ++y_;
    }

 private:
    const GifFrame frame_;
    const Color ground_;
    GifFrameRows rows_;
    int y_ = 0;
};

class GifFile {
 public:
    explicit GifFile(const pictures::PictureFile& file) : whole_(file), file_(file) {}

    std::unique_ptr<pictures::PictureRows> FirstPicture() {
        if (!IsGif()) return nullptr;
        width_ = static_cast<int>(pictures::Word(file_, 6));
        height_ = static_cast<int>(pictures::Word(file_, 8));
        offset_ = kScreenHeader;
        UseGreys();
        ReadBackground(ReadPalette(pictures::Byte(file_, 10), globalPalette_));
        return FindFrame() ? Open() : nullptr;
    }

 private:
    bool IsGif() {
        constexpr std::uint8_t kSignature[] = {'G', 'I', 'F', '8'};
        return file_.size() >= kScreenHeader &&
               std::equal(kSignature, kSignature + 4, file_.From(0, kScreenHeader).begin()) &&
               (file_[4] == '7' || file_[4] == '9') && file_[5] == 'a';
    }

    // A file without any palette leaves the colours to the program that shows it.
    void UseGreys() {
        for (int i = 0; i < 256; ++i) globalPalette_[i].fill(static_cast<std::uint8_t>(i));
    }

    // A background that the palette does not have is left white.
    void ReadBackground(std::size_t paletteEntries) {
        const std::uint32_t color = pictures::Byte(file_, 11);
        if (color < paletteEntries) background_ = globalPalette_[color];
    }

    // Reads the palette that a flags byte announces and returns its size, 0 for none. Colour
    // numbers beyond its end are black.
    std::size_t ReadPalette(std::uint32_t flags, GifPalette& palette) {
        if ((flags & 0x80) == 0) return 0;
        const std::size_t entries = std::size_t{2} << (flags & 7);
        palette = {};
        for (std::size_t i = 0; i < entries * 3; ++i) {
            palette[i / 3][i % 3] = static_cast<std::uint8_t>(pictures::Byte(file_, offset_ + i));
        }
        offset_ += entries * 3;
        return entries;
    }

    // Goes to the data of the first picture with an extent. Bytes that begin no block are passed
    // over: other programs do so too, and there are files with stray zeros between blocks.
    bool FindFrame() {
        while (offset_ < file_.size()) {
            switch (file_[offset_++]) {
                case kExtension:
                    ReadExtension();
                    break;
                case kFrameBlock:
                    if (!ReadFrame()) return false;
                    if (frame_.width > 0 && frame_.height > 0) return true;
                    PassOverFrame();
                    break;
                case kTrailer:
                    return false;
            }
        }
        return false;
    }

    void ReadExtension() {
        const std::uint32_t kind = pictures::Byte(file_, offset_++);
        if (kind == kGraphicControl) {
            const bool transparent = (pictures::Byte(file_, offset_ + 1) & 1) != 0;
            frame_.transparent =
                transparent ? static_cast<int>(pictures::Byte(file_, offset_ + 4)) : -1;
        } else if (kind == kPlainText) {
            frame_.transparent = -1;  // the graphic control before a text is the text's
        }
        PassOverSubBlocks();
    }

    // Reads where the picture lies; offset_ stays.
    bool ReadFrame() {
        if (file_.size() - offset_ < kFrameHeader) return false;
        frame_.left = static_cast<int>(pictures::Word(file_, offset_));
        frame_.top = static_cast<int>(pictures::Word(file_, offset_ + 2));
        frame_.width = static_cast<int>(pictures::Word(file_, offset_ + 4));
        frame_.height = static_cast<int>(pictures::Word(file_, offset_ + 6));
        frame_.interlaced = (pictures::Byte(file_, offset_ + 8) & 0x40) != 0;
        return true;
    }

    void PassOverFrame() {
        const std::uint32_t flags = pictures::Byte(file_, offset_ + 8);
        const std::size_t palette = (flags & 0x80) != 0 ? std::size_t{6} << (flags & 7) : 0;
        offset_ += kFrameHeader + palette + 1;  // the last one: how many bits its codes have
        PassOverSubBlocks();
        frame_.transparent = -1;
    }

    // A screen without an extent is as large as its picture.
    std::unique_ptr<pictures::PictureRows> Open() {
        frame_.palette = globalPalette_;
        const std::uint32_t flags = pictures::Byte(file_, offset_ + 8);
        offset_ += kFrameHeader;
        ReadPalette(flags, frame_.palette);
        if (width_ == 0) width_ = frame_.left + frame_.width;
        if (height_ == 0) height_ = frame_.top + frame_.height;
        const std::size_t bytesLeft = file_.size() - std::min(file_.size(), offset_);
        if (!pictures::IsPlausibleSize(frame_.width, frame_.height) ||
            !pictures::IsPlausibleSize(width_, height_) ||
            !pictures::EnoughBytes(bytesLeft, std::int64_t{width_} * height_, kMostPixelsInAByte)) {
            return nullptr;
        }
        const int literalBits = static_cast<int>(pictures::Byte(file_, offset_++));
        if (literalBits < 1 || literalBits > GifLzw::kMostLiteralBits) return nullptr;
        GifLzw decoder(GifData(whole_, offset_), literalBits);
        if (decoder.IsAtEnd()) return nullptr;
        const Color ground = frame_.transparent >= 0 ? kWhite : background_;
        return std::make_unique<GifRows>(width_, height_, frame_, ground, decoder);
    }

    // Leaves offset_ behind the empty sub-block that ends them.
    void PassOverSubBlocks() {
        while (offset_ < file_.size()) {
            const std::size_t size = file_[offset_++];
            if (size == 0) return;
            offset_ += std::min(size, file_.size() - offset_);
        }
    }

    const pictures::PictureFile whole_;
    pictures::FileWindow file_;
    std::size_t offset_ = 0;
    int width_ = 0;  // of the logical screen
    int height_ = 0;
    Color background_ = kWhite;
    GifPalette globalPalette_{};
    GifFrame frame_;
};

}  // namespace

std::unique_ptr<pictures::PictureRows> OpenGif(const pictures::PictureFile& file) {
    return GifFile(file).FirstPicture();
}

std::optional<pictures::RgbPicture> ReadGif(const pictures::PictureFile& file) {
    const std::unique_ptr<pictures::PictureRows> rows = OpenGif(file);
    if (!rows) return std::nullopt;
    return pictures::ReadAll(*rows);
}

}  // namespace vistrel::gif
