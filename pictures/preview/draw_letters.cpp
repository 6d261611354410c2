#include "pictures/preview/draw_letters.h"

#include <algorithm>
#include <cstdint>
#include <new>

#include "platform/characters.h"
#include "platform/drawing_objects.h"
#include "platform/win32.h"

namespace vistrel::preview {
namespace {

// A screen is seen as 640 x 480 square dots, five of which are drawn for each: a pixel of the
// screen, two dots wide and 1.2 high, is then a whole number of those.
constexpr int kAcross = 10;
constexpr int kDown = 6;
constexpr int kDotsPerInch = 96 * 5;

/// The most that is drawn of a line: three screens, whatever stands in it.
constexpr int kWidest = 3 * 320 * kAcross;
constexpr int kHighest = 400 * kDown;

HFONT MakeFont(const platform::TextFont& font) {
    LOGFONTA wanted{};
    wanted.lfHeight = -std::min(MulDiv(font.tenthsOfPoint, kDotsPerInch, 720), kHighest);
    wanted.lfWeight = font.weight;
    wanted.lfItalic = font.italic;
    wanted.lfCharSet = static_cast<BYTE>(font.charSet);
    wanted.lfOutPrecision = OUT_TT_PRECIS;
    lstrcpynA(wanted.lfFaceName, font.face.c_str(), LF_FACESIZE);
    return platform::NewFont(wanted);
}

/// A device context with a font, and with a bitmap of one bit a dot once it has a size.
class Drawing {
 public:
    explicit Drawing(const platform::TextFont& font)
        : dc_(platform::NewMemoryContext(nullptr)), font_(MakeFont(font)) {
        formerFont_ = SelectObject(dc_, font_);
    }
    ~Drawing() {
        SelectObject(dc_, formerFont_);
        DeleteObject(font_);
        if (bitmap_) {
            SelectObject(dc_, formerBitmap_);
            DeleteObject(bitmap_);
        }
        DeleteDC(dc_);
    }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    SIZE SizeOf(const std::string& text) const {
        SIZE size{};
        GetTextExtentPoint32A(dc_, text.c_str(), static_cast<int>(text.size()), &size);
        return size;
    }

    /// As much of the text, from its beginning, as is not wider than this.
    std::string WhatFits(const std::string& text, int width) const {
        int count = 0;
        SIZE size{};
        GetTextExtentExPointA(dc_, text.c_str(), static_cast<int>(text.size()), width, &count,
                              nullptr, &size);
        std::size_t end = 0;
        while (end < text.size() &&
               end + platform::CharacterLength(text, end) <= static_cast<std::size_t>(count))
            end += platform::CharacterLength(text, end);
        return text.substr(0, end);
    }

    std::string Face() const {
        char name[LF_FACESIZE] = "";
        GetTextFaceA(dc_, sizeof name, name);
        return name;
    }

    /// False without memory.
    bool Draw(const std::string& text, int left, int width, int height) {
        struct {
            BITMAPINFOHEADER header;
            RGBQUAD colors[2] = {{0, 0, 0, 0}, {255, 255, 255, 0}};
        } info{platform::HeaderFromTop(width, height, 1)};
        void* bits = nullptr;
        bitmap_ = platform::NewBitmapInMemory(dc_, &info, &bits);
        if (!bitmap_) return false;
        formerBitmap_ = SelectObject(dc_, bitmap_);
        PatBlt(dc_, 0, 0, width, height, BLACKNESS);
        SetTextColor(dc_, RGB(255, 255, 255));
        SetBkMode(dc_, TRANSPARENT);
        TextOutA(dc_, left, 0, text.c_str(), static_cast<int>(text.size()));
        GdiFlush();
        bits_ = static_cast<const std::uint8_t*>(bits);
        stride_ = (width + 31) / 32 * 4;
        return true;
    }

    const std::uint8_t* Row(int y) const {
        return bits_ + static_cast<std::ptrdiff_t>(y) * stride_;
    }

 private:
    HDC dc_;
    HFONT font_;
    HGDIOBJ formerFont_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ formerBitmap_ = nullptr;
    const std::uint8_t* bits_ = nullptr;
    int stride_ = 0;
};

/// Adds to each sum how many of its dots in a row are set.
void CountDots(const std::uint8_t* row, std::vector<int>& sums) {
    int dot = 0;
    for (int& sum : sums)
        for (const int end = dot + kAcross; dot < end; ++dot)
            sum += row[dot >> 3] >> (7 - (dot & 7)) & 1;
}

std::vector<std::uint8_t> CoverOf(const Drawing& drawing, int width, int height) {
    std::vector<std::uint8_t> cover;
    cover.reserve(std::size_t(width) * height);
    std::vector<int> sums(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        std::fill(sums.begin(), sums.end(), 0);
        for (int line = 0; line < kDown; ++line) CountDots(drawing.Row(y * kDown + line), sums);
        for (const int sum : sums)
            cover.push_back(static_cast<std::uint8_t>(sum * 255 / (kAcross * kDown)));
    }
    return cover;
}

}  // namespace

Letters DrawLetters(const std::string& whole, const platform::TextFont& font) try {
    if (whole.empty()) return {};
    Drawing drawing(font);
    Letters letters;
    letters.height = (static_cast<int>(drawing.SizeOf(whole).cy) + kDown - 1) / kDown;
    // Slanted and swung letters reach beyond their room.
    const int beside = letters.height / 2;
    const std::string text = drawing.WhatFits(whole, kWidest - 2 * beside * kAcross);
    letters.width = (static_cast<int>(drawing.SizeOf(text).cx) + kAcross - 1) / kAcross;
    compose::Mask& mask = letters.mask;
    mask.left = -beside;
    mask.width = letters.width + 2 * beside;
    mask.height = letters.height;
    if (!drawing.Draw(text, beside * kAcross, mask.width * kAcross, mask.height * kDown)) return {};
    mask.cover = CoverOf(drawing, mask.width, mask.height);
    return letters;
} catch (const std::bad_alloc&) {
    return {};
}

std::string FaceFor(const std::string& face) {
    platform::TextFont font;
    font.face = face;
    return Drawing(font).Face();
}

}  // namespace vistrel::preview
