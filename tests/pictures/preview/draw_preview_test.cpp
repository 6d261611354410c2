// Picture files in picture boxes: what is shown, and what is told of them.
#include "pictures/preview/draw_preview.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <new>

#include "controls/display_palette.h"
#include "main_window/frm_view.h"
#include "pictures/bmp/writer.h"
#include "pictures/convert.h"
#include "pictures/file.h"
#include "pictures/read_picture.h"
#include "platform/fault.h"
#include "platform/standard_picture.h"
#include "tests/support/machine/machine.h"
#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"
#include "tests/support/user/held_objects.h"

namespace {

/// While it is not 0, no block of at least so many bytes is to be had.
std::size_t refused = 0;

}  // namespace

// Not inlined, since the compiler would take malloc and delete for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* const block = refused != 0 && size >= refused ? nullptr : std::malloc(size);
    if (!block) throw std::bad_alloc();
    return block;
}

[[gnu::noinline]] void operator delete(void* block) noexcept { std::free(block); }

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace vistrel::test {

using namespace bmp;
using namespace main_window;
using namespace pictures;
using namespace platform;
using namespace preview;

namespace {

class Drawing : public Machine {
 protected:
    std::string Write(const std::string& name, const Bytes& bytes) {
        Put(logos + name, std::string(bytes.begin(), bytes.end()));
        return logos + name;
    }
};

BmpFile MakeBmp(int width, int height, const std::vector<RgbColor>& palette) {
    BmpFile file;
    file.width = width;
    file.height = height;
    file.bitsPerPixel = 8;
    file.palette = palette;
    file.pixels = PackIndices(MakeIndices(width, height, 4), width, height, 8);
    return file;
}

struct Facts {
    std::int32_t width = -1;
    std::int32_t height = -2;
    std::int16_t depth = -3;

    bool operator==(const Facts&) const = default;
};

TEST_F(Drawing, ABitmapHeaderThatIsCutShortTellsNothing) {
    const Bytes whole = MakeBmp(70, 30, MakePalette(256)).Encode();
    for (std::size_t size : {0, 1, 18, 26, 29}) {
        Facts facts;
        ReadBitmapHeader(Write("cut.bmp", Bytes(whole.begin(), whole.begin() + size)), facts.width,
                         facts.height, facts.depth);
        EXPECT_EQ(facts, Facts{}) << size;
    }
    Facts facts;
    ReadBitmapHeader(logos + "none.bmp", facts.width, facts.height, facts.depth);
    EXPECT_EQ(facts, Facts{});
    ReadBitmapHeader(Write("enough.bmp", Bytes(whole.begin(), whole.begin() + 30)), facts.width,
                     facts.height, facts.depth);
    EXPECT_EQ(facts, (Facts{70, 30, 8}));
}

class Previews : public Drawing {
 protected:
    Facts FactsOf(const std::string& path) {
        Facts facts;
        EXPECT_TRUE(view_.Create(nullptr));
        DrawPreview(path, view_.Preview, facts.width, facts.height, facts.depth);
        shown_ = view_.Preview.HasPicture();
        view_.Unload();
        return facts;
    }

    FrmView view_{logos + "none.bmp", false};
    bool shown_ = false;
};

TEST_F(Previews, TheSizeOfAnOs2BitmapIsThatOfItsPicture) {
    BmpFile file = MakeBmp(70, 30, MakePalette(256));
    file.headerSize = 12;
    EXPECT_EQ(FactsOf(Write("os2.bmp", file.Encode())), (Facts{70, 30, 8}));
    EXPECT_TRUE(shown_);
}

TEST_F(Previews, AnOs2BitmapOfAScreensSizeIsNotTakenForAScreen) {
    BmpFile file = MakeBmp(320, 400, MakePalette(256));
    file.headerSize = 12;
    EXPECT_NE(FactsOf(Write("LOGO.SYS", file.Encode())), (Facts{320, 400, 8}));
    EXPECT_TRUE(shown_);
}

/// The actual-size view of a file.
class ActualSize : public Drawing {
 protected:
    void Show(const std::string& path) {
        view_ = std::make_unique<FrmView>(path, false);
        ASSERT_TRUE(view_->Create(nullptr));
    }
    ~ActualSize() override {
        if (view_) view_->Unload();
    }

    int Width() { return view_->Preview.ScaleWidth(); }
    int Height() { return view_->Preview.ScaleHeight(); }
    COLORREF At(int x, int y) { return GetPixel(view_->Preview.Canvas(), x, y); }

    std::unique_ptr<FrmView> view_;
};

Bytes BytesOf(const std::string& path) {
    const auto bytes = ReadWholeFile(path);
    EXPECT_TRUE(bytes.has_value()) << path;
    return bytes.value_or(Bytes{});
}

/// A JPG with an EXIF segment that gives an orientation.
Bytes Turned(Bytes file, std::uint8_t orientation) {
    const Bytes exif = {0xFF, 0xE1, 0, 34, 'E',         'x', 'i', 'f', 0,    0, 'I', 'I',
                        42,   0,    8, 0,  0,           0,   1,   0,   0x12, 1, 3,   0,
                        1,    0,    0, 0,  orientation, 0,   0,   0,   0,    0, 0,   0};
    file.insert(file.begin() + 2, exif.begin(), exif.end());
    return file;
}

TEST_F(ActualSize, APhotographTakenOnItsSideIsUpright) {
    const Bytes stored = BytesOf("baseline.jpg");
    Show(Write("stored.jpg", stored));
    EXPECT_EQ(Width(), 700);
    EXPECT_EQ(Height(), 500);
    view_->Unload();
    const std::string path = Write("turned.jpg", Turned(stored, 6));
    const auto upright = ReadPicture(path);
    ASSERT_TRUE(upright.has_value());
    Show(path);
    ASSERT_EQ(Width(), 500);
    ASSERT_EQ(Height(), 700);
    for (const auto& [x, y] : {std::pair{10, 20}, {480, 40}, {250, 650}}) {
        const std::uint8_t* rgb = &upright->pixels[(std::size_t(y) * 500 + x) * 3];
        EXPECT_EQ(At(x, y), RGB(rgb[0], rgb[1], rgb[2])) << x << " " << y;
    }
}

TEST_F(ActualSize, APictureThatTheSystemRefusesIsShownByOurReaders) {
    const GifFile file = MakeGif(90, 40, 256);
    const std::string path = Write("refused.gif", file.Encode());
    fault::FailOperation(1);  // the system's loader comes first
    Show(path);
    fault::Reset();
    ASSERT_TRUE(view_->Preview.HasPicture());
    EXPECT_EQ(Width(), 90);
    EXPECT_EQ(Height(), 40);
    const auto color = file.palette[file.images[0].indices[90 * 30 + 50]];
    EXPECT_EQ(At(50, 30), RGB(color[0], color[1], color[2]));
}

// An icon is none of the formats that our readers know.
TEST_F(ActualSize, APictureThatOnlyTheSystemReadsIsShown) {
    Bytes icon = {0, 0, 1, 0, 1, 0, 16, 16, 0, 0, 1, 0, 24, 0, 0, 0, 0, 0, 22, 0, 0, 0};
    BmpFile image;
    image.width = 16;
    image.height = 16;
    image.pixels = Bytes(16 * 48, 200);
    Bytes bits = image.Encode();
    bits.erase(bits.begin(), bits.begin() + 14);
    bits[8] = 32;                        // the height counts the mask too
    bits.insert(bits.end(), 16 * 4, 0);  // all of it is drawn
    icon[14] = static_cast<std::uint8_t>(bits.size());
    icon[15] = static_cast<std::uint8_t>(bits.size() >> 8);
    icon.insert(icon.end(), bits.begin(), bits.end());
    const std::string path = Write("icon.ico", icon);
    ASSERT_FALSE(ReadPicture(path).has_value());
    Show(path);
    EXPECT_TRUE(view_->Preview.HasPicture());
    EXPECT_EQ(At(8, 8), RGB(200, 200, 200));
}

TEST_F(ActualSize, WhatNobodyCanReadLeavesTheBoxEmpty) {
    Show(Write("text.jpg", Bytes(100, 'x')));
    EXPECT_FALSE(view_->Preview.HasPicture());
}

TEST_F(ActualSize, ABoxWithoutRoomForItsPictureStaysEmpty) {
    Show(logos + "none.bmp");
    view_->Preview.SetScaleSize({32000, 32000});
    const auto canvas = view_->Preview.Canvas();
    view_->Preview.Keep();
    EXPECT_EQ(view_->Preview.HasPicture(), canvas != nullptr);
    if (!canvas) return;
    // A system that has the room holds the whole of it.
    EXPECT_EQ(GetPixel(canvas, 31999, 31999), GetSysColor(COLOR_BTNFACE));
}

TEST_F(Drawing, WithoutMemoryTheSystemsLoaderGivesNothingAndKeepsNothing) {
    const std::string path = Write("bitmap.bmp", MakeBmp(300, 200, MakePalette(256)).Encode());
    StandardPicture picture;
    ASSERT_TRUE(LoadStandardPicture(path, picture));
    const HeldObjects held = CountHeldObjects();
    refused = 300 * 200 * 3;
    picture = {};
    for (int i = 0; i < 5; ++i) EXPECT_FALSE(LoadStandardPicture(path, picture));
    refused = 0;
    EXPECT_EQ(CountHeldObjects().drawing, held.drawing);
}

TEST_F(Drawing, AFolderNamedLikeTheTemporaryFileHindersNoConversion) {
    const std::string source = Write("a.bmp", MakeBmp(70, 30, MakePalette(256)).Encode());
    MakeFolders(logos + "~vs00000.tmp\\");
    EXPECT_EQ(TryConvertToLogo(source, logos + "LOGO.SYS"), ConversionResult::Written);
    EXPECT_EQ(TryConvertToLogo(source, logos + "LOGO.SYS"), ConversionResult::Written);
    EXPECT_EQ(NamesIn(logos), (std::vector<std::string>{"LOGO.SYS", "a.bmp", "~vs00000.tmp"}));
}

TEST_F(Drawing, ATargetThatCannotBeWrittenToStaysAsItWas) {
    const std::string target = Write("LOGO.SYS", Bytes(5, 1));
    GiveAttributes(target, FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(WriteWholeFile(target, Bytes(9, 2)));
    EXPECT_EQ(Contents(target), std::string(5, 1));
    GiveAttributes(target, FILE_ATTRIBUTE_NORMAL);
    MakeFolders(logos + "folder\\");
    EXPECT_FALSE(WriteWholeFile(logos + "folder", Bytes(9, 2)));
    EXPECT_EQ(NamesIn(logos), (std::vector<std::string>{"LOGO.SYS", "folder"}));
}

}  // namespace
}  // namespace vistrel::test
