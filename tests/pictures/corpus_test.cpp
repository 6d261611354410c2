// Every picture of the corpus comes out as the reference tells; the broken ones do no harm.
#include "tests/pictures/corpus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "pictures/file.h"
#include "tests/support/picture_files/md5.h"

namespace vistrel::test {

using namespace pictures;

namespace {

const std::string kFolder = PICTURE_CORPUS;

/// A picture that many other programs show with the pixels whose colour numbers are beyond the
/// palette left out. Here these are black, as in every other picture.
const std::set<std::string> kShownOtherwise = {"gif/libgd/unitialized_memory_read.gif"};

std::optional<RgbPicture> Read(const CorpusFile& file) {
    const auto bytes = ReadWholeFile(kFolder + "/" + file.path);
    EXPECT_TRUE(bytes.has_value());
    if (!bytes) return std::nullopt;
    std::optional<RgbPicture> picture = ReadByContent(*bytes);
    if (picture) {
        EXPECT_TRUE(IsPlausibleSize(picture->width, picture->height));
        EXPECT_EQ(picture->pixels.size(), std::size_t{3} * picture->width * picture->height);
    }
    return picture;
}

bool IsTooLarge(const Reference& reference) {
    return reference.width > kLargestSide || reference.height > kLargestSide;
}

void ExpectDigest(const RgbPicture& picture, const Reference& reference) {
    EXPECT_EQ(picture.width, reference.width);
    EXPECT_EQ(picture.height, reference.height);
    const std::string digest = Md5(picture.pixels);
    if (digest != reference.md5OnBackground) {
        EXPECT_EQ(digest, reference.md5);
    }
}

// Bitmaps and GIF pictures have no latitude: each pixel is one of the file's colours.
void ExpectAsReferenced(const CorpusFile& file) {
    const std::optional<RgbPicture> picture = Read(file);
    if (file.kind == CorpusKind::Bad || !file.reference) return;
    const Reference& reference = *file.reference;
    if (file.kind == CorpusKind::Good) {
        ASSERT_EQ(picture.has_value(), !IsTooLarge(reference));
    }
    if (!picture) return;
    if (reference.method == "md5" && !kShownOtherwise.contains(file.path)) {
        ExpectDigest(*picture, reference);
    } else if (reference.width > 0) {
        EXPECT_EQ(picture->width, reference.width);
        EXPECT_EQ(picture->height, reference.height);
    }
}

std::vector<double> Mean(const RgbPicture& picture) {
    std::vector<double> mean(3);
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) mean[i % 3] += picture.pixels[i];
    for (double& channel : mean) channel /= static_cast<double>(picture.pixels.size() / 3);
    return mean;
}

// Decoders of JPEG round as they like, and the reference's pictures are not turned upright.
void ExpectLikeReference(const CorpusFile& file) {
    const std::optional<RgbPicture> picture = Read(file);
    if (file.kind == CorpusKind::Bad || !file.reference) return;
    const Reference& reference = *file.reference;
    const bool mayBeRefused = file.kind == CorpusKind::Questionable || IsTooLarge(reference) ||
                              reference.method == "mean (libjpeg-turbo only)";
    ASSERT_TRUE(picture.has_value() || mayBeRefused);
    if (!picture || reference.width == 0) return;
    EXPECT_EQ(std::minmax(picture->width, picture->height),
              std::minmax(reference.width, reference.height));
    if (file.kind != CorpusKind::Good || reference.mean.empty()) return;
    const std::vector<double> mean = Mean(*picture);
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(mean[i], reference.mean[i], 1.5);
}

void ForEachFile(const std::string& ending, void (*check)(const CorpusFile&)) {
    const std::vector<CorpusFile> files = ReadCorpus(kFolder, ending);
    ASSERT_GT(files.size(), 50u);
    for (const CorpusFile& file : files) {
        SCOPED_TRACE(file.path + ": " + file.about);
        check(file);
    }
}

TEST(CorpusTest, BitmapsAreAsReferenced) { ForEachFile(".bmp", ExpectAsReferenced); }

TEST(CorpusTest, GifPicturesAreAsReferenced) { ForEachFile(".gif", ExpectAsReferenced); }

TEST(CorpusTest, JpegPicturesAreLikeTheirReferences) { ForEachFile(".jpg", ExpectLikeReference); }

}  // namespace
}  // namespace vistrel::test
