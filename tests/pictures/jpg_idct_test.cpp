// The inverse transforms (IDCT) and colours of JPEG files, by vectors or not, against the same sums
// made one number at a time: with numbers that no sound file has, too.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "pictures/jpg/color.h"
#include "pictures/jpg/idct/block.h"
#include "pictures/jpg/idct/full.h"
#include "pictures/jpg/idct/reduced.h"
#include "tests/support/picture_files/all_loops.h"

namespace vistrel::test {

using namespace jpg;

namespace {

constexpr int kFrequencies[] = {1, 2, 3, 4, 5, 8};

template <int N>
std::vector<Wrapping> Terms(const std::vector<Wrapping>& in) {
    std::vector<Wrapping> out(N);
    Idct1d<N>(in.data(), out.data());
    return out;
}

std::vector<Wrapping> Line(const std::vector<Wrapping>& in) {
    switch (in.size()) {
        case 1:
            return Terms<1>(in);
        case 2:
            return Terms<2>(in);
        case 3:
            return Terms<3>(in);
        case 4:
            return Terms<4>(in);
        case 5:
            return Terms<5>(in);
        default:
            return Terms<8>(in);
    }
}

// The samples of one block, in units of 1 / (1 << fraction) from the middle of their range.
std::vector<std::int32_t> Samples(const std::int16_t* block, const std::vector<int>& steps,
                                  std::size_t across, std::size_t down, int fraction) {
    std::vector<Wrapping> between(across * down);
    for (std::size_t x = 0; x < across; ++x) {
        std::vector<Wrapping> column;
        for (std::size_t y = 0; y < down; ++y) {
            const std::size_t at = y * across + x;
            column.push_back(static_cast<Wrapping>(block[at] * steps[at]));
        }
        const std::vector<Wrapping> sums = Line(column);
        // A constant term that stands alone is not rounded, and thus never overflows.
        const bool isAlone = down > 2 && std::all_of(column.begin() + 1, column.end(),
                                                     [](Wrapping term) { return term == 0; });
        for (std::size_t y = 0; y < down; ++y) {
            between[y * across + x] =
                isAlone ? column[0] << kColumnBits
                        : static_cast<Wrapping>(Descale(sums[y], kTermBits - kColumnBits));
        }
    }
    std::vector<std::int32_t> samples;
    for (std::size_t y = 0; y < down; ++y) {
        const auto row = between.begin() + static_cast<std::ptrdiff_t>(y * across);
        for (const Wrapping sum : Line({row, row + static_cast<std::ptrdiff_t>(across)})) {
            samples.push_back(Descale(sum, kSumBits - fraction));
        }
    }
    return samples;
}

// Blocks from almost nothing to whatever a damaged file may hold.
class Numbers {
 public:
    std::int16_t Coefficient() {
        if (Below(3) == 0) return 0;
        return static_cast<std::int16_t>(static_cast<int>(Below(2u << bits_)) - (1 << bits_));
    }
    std::uint16_t Step() { return static_cast<std::uint16_t>(Below(1u << stepBits_) + 1); }
    void NextKind() {
        bits_ = static_cast<int>(Below(16));
        stepBits_ = static_cast<int>(Below(Below(4) == 0 ? 16 : 8));
    }

    unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

 private:
    std::mt19937 random_{1};
    int bits_ = 0, stepBits_ = 0;
};

QuantTable SomeSteps(Numbers& numbers) {
    QuantTable quant;
    for (std::uint16_t& step : quant) step = numbers.Step();
    return quant;
}

/// By each kind of innermost loops that this machine can run.
class JpgInverse : public testing::TestWithParam<loops::Kind> {
 protected:
    void SetUp() override {
        if (!loops::CanRun(GetParam())) GTEST_SKIP() << "this machine cannot run these loops";
        loops::Force(GetParam());
    }
};

INSTANTIATE_TEST_SUITE_P(ByLoops, JpgInverse, kAllLoops, NameOfLoops);

TEST_P(JpgInverse, ReducedBlocksAreTheSumsOfTheirTerms) {
    constexpr int kBlocks = 9;
    Numbers numbers;
    for (const int across : kFrequencies) {
        for (const int down : kFrequencies) {
            const KeptFrequencies kept = KeptFrequencies::Of(across, down);
            for (int kind = 0; kind < 60; ++kind) {
                numbers.NextKind();
                const QuantTable quant = SomeSteps(numbers);
                std::vector<int> steps(static_cast<std::size_t>(kept.stride));
                for (std::size_t k = 0; k < quant.size(); ++k) {
                    if (kept.IsKept(static_cast<int>(k))) steps[kept.slot[k]] = quant[k];
                }
                std::vector<std::int16_t> blocks(static_cast<std::size_t>(kBlocks * kept.stride));
                for (std::int16_t& number : blocks) number = numbers.Coefficient();
                const int width = kBlocks * across;
                std::vector<std::int16_t> samples(static_cast<std::size_t>(width * down));
                ReducedIdct(kept, quant).Transform(blocks.data(), kBlocks, samples.data(), width);
                for (int i = 0; i < kBlocks; ++i) {
                    const std::vector<std::int32_t> wanted =
                        Samples(&blocks[static_cast<std::size_t>(i * kept.stride)], steps,
                                static_cast<std::size_t>(across), static_cast<std::size_t>(down),
                                kFineBits);
                    for (int at = 0; at < across * down; ++at) {
                        const int place = at / across * width + i * across + at % across;
                        ASSERT_EQ(samples[static_cast<std::size_t>(place)],
                                  std::clamp(wanted[static_cast<std::size_t>(at)], -8192, 8191))
                            << across << " x " << down;
                    }
                }
            }
        }
    }
}

TEST_P(JpgInverse, WholeBlocksAreTheSumsOfTheirTerms) {
    Numbers numbers;
    for (int kind = 0; kind < 3000; ++kind) {
        numbers.NextKind();
        const QuantTable quant = SomeSteps(numbers);
        std::vector<int> steps(kBlockSize);
        for (std::size_t k = 0; k < quant.size(); ++k) steps[kZigzag[k]] = quant[k];
        std::array<std::int16_t, kBlockSize> block;
        for (std::int16_t& number : block) number = numbers.Coefficient();
        std::array<std::uint8_t, kBlockSize> samples;
        IdctFull(block.data(), DequantTableOf(quant), samples.data(), 8);
        const std::vector<std::int32_t> wanted = Samples(block.data(), steps, 8, 8, 0);
        for (std::size_t at = 0; at < samples.size(); ++at) {
            ASSERT_EQ(samples[at], std::clamp(wanted[at] + 128, 0, 255));
        }
    }
}

TEST_P(JpgInverse, ColorsOfAnySamplesAreThoseOfTheFormulas) {
    constexpr int kWidth = 8 * 40 + 5;
    Numbers numbers;
    std::vector<std::int16_t> rows[3];
    for (int kind = 0; kind < 100; ++kind) {
        for (std::vector<std::int16_t>& row : rows) {
            numbers.NextKind();
            row.resize(kWidth);
            for (std::int16_t& sample : row) sample = numbers.Coefficient();
        }
        const std::int16_t* const starts[] = {rows[0].data(), rows[1].data(), rows[2].data()};
        std::vector<std::uint8_t> rgb(kWidth * 3);
        const auto expect = [&](int x, int red, int green, int blue) {
            const int wanted[] = {red, green, blue};
            for (int c = 0; c < 3; ++c) {
                ASSERT_EQ(rgb[static_cast<std::size_t>(3 * x + c)],
                          std::clamp((wanted[c] + 8192 + 32) >> kFineBits, 0, 255));
            }
        };
        ConvertFineRow({JpgColor::Ycc}, starts, kWidth, rgb.data());
        for (int x = 0; x < kWidth; ++x) {
            const int y = starts[0][x], cb = starts[1][x], cr = starts[2][x];
            const auto part = [](std::int64_t sum) {
                return static_cast<int>((sum + 32768) >> 16);
            };
            expect(x, y + part(std::int64_t{91881} * cr),
                   y + part(std::int64_t{-22554} * cb - std::int64_t{46802} * cr),
                   y + part(std::int64_t{116130} * cb));
        }
        ConvertFineRow({JpgColor::Rgb}, starts, kWidth, rgb.data());
        for (int x = 0; x < kWidth; ++x) expect(x, starts[0][x], starts[1][x], starts[2][x]);
        ConvertFineRow({JpgColor::Grey}, starts, kWidth, rgb.data());
        for (int x = 0; x < kWidth; ++x) expect(x, starts[0][x], starts[0][x], starts[0][x]);
    }
}

}  // namespace
}  // namespace vistrel::test
