// The innermost loops of all conversions. Each is compiled for a processor that has nothing but a
// Pentium's instructions, for one with MMX and for one with SSE2, and gives the same results on
// each. One table, chosen when it is first asked for, says which ones this machine runs.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vistrel::loops {

/// Colours and errors are points of four 16-bit numbers, the last of which is not seen.
inline constexpr int kPoint = 4;

/// What an error of 0 is in an error row, whose numbers have no sign. Errors lie within 3,520: the
/// sums of nine that blurring makes of them fit into 16 bits, and when a sixteenth of these is
/// taken, they are rounded.
inline constexpr int kNoError = 3640;
/// An error of 0, blurred along its row.
inline constexpr int kNoneAlong = 9 * kNoError / 16;
/// What a field's number is where there is no error, with the own error's weight in eighths.
constexpr int NoField(int ownWeight) { return 9 * kNoneAlong + kNoError / 8 * ownWeight; }
/// Own errors with more than this weight would not fit into a field's numbers.
inline constexpr int kMostOwnWeight = 31;

/// The other colours that a pixel of some colour may take, the nearest first.
struct Alternatives {
    static constexpr int kMost = 8;
    std::array<std::int16_t, 2 * kMost> xy{};  ///< x and y of each difference d in turn
    std::array<std::int16_t, 2 * kMost> z{};   ///< z of each d, and 0, in turn
    std::array<std::int32_t, kMost> half{};    ///< what |d|^2 / 2 adds to the sum, see Choose
    /// A field of at most this squared length makes neither the k-th change nor a later one worth
    /// while. Behind the last one, that of a change that never is.
    std::array<std::uint32_t, kMost + 1> enough{};
    std::array<std::uint8_t, kMost> color{};
    std::int32_t count = 0;
    /// A field of at most this squared length makes no change worth the trouble.
    std::uint32_t harmless = 0;
};

/// The sums of the field over the pixels of a colour.
struct FieldSum {
    std::int32_t x = 0, z = 0, y = 0, pixels = 0;
};

/// Pixels of a row that have taken another colour.
struct ChangedPixels {
    int count = 0;
    int* places;  ///< in order; room for a whole row

    void Add(int place) { places[count++] = place; }
};

/// A row of the picture for which Choose finds colours.
struct ChoiceRow {
    int width;
    const std::uint16_t* colors;       ///< the palette's points
    const Alternatives* alternatives;  ///< one for each of them
    int ownWeight;                     ///< see Loops::blurDown
    std::uint8_t* indices;
    std::uint16_t* errors;
    std::uint16_t* field;  ///< with two points more behind it
    FieldSum* sums;        ///< one for each colour; none where nobody asks for them
    ChangedPixels* changed;
};

/// The source samples that make one target sample, and where their weights stand.
struct Taps {
    int first = 0;
    int count = 0;
    std::size_t offset = 0;
};

/// Loops over weights may run on to the next multiple of this many: zeros stand there.
inline constexpr int kTapGroup = 8;

/// So many rows are weighed along themselves at once, which share the weights.
inline constexpr int kRowsAtOnce = 4;

/// Rows that are weighed along themselves. Samples i of the results are made by the i-th taps.
struct AlongJob {
    const Taps* taps;
    int count;
    const std::int16_t* weights;
    int shift;                 ///< by which sums are shifted right, rounded
    const std::int16_t* rows;  ///< kRowsAtOnce of them; readable for kTapGroup samples behind
    std::size_t apart;         ///< samples from one row to the next
    std::int16_t* results;
    std::size_t resultsApart;
    int stride;  ///< from one result to the next
};

/// Bits behind the point of samples that have some; these count from the middle of the range of
/// bytes.
inline constexpr int kSampleBits = 6;

/// The weights of JFIF for red, green and blue, less the nearest whole numbers, times 65,536: so no
/// product of theirs with a number of 16 bits overflows.
inline constexpr int kRedOfCr = 91881 - 65536;        // 1.402
inline constexpr int kGreenOfCb = -22554;             // -0.34414
inline constexpr int kGreenOfCr = 65536 - 46802;      // -0.71414
inline constexpr int kBlueOfCb = 116130 - 2 * 65536;  // 1.772

/// Blocks of `down` rows of `across` coefficients, which lie side by side in the picture.
struct IdctJob {
    const std::int16_t* steps;  ///< of quantisation
    int most;                   ///< coefficients up to this times any step fit into 16 bits
    int across;
    int down;
    const std::int16_t* blocks;
    int blockStride;  ///< numbers from block to block
    int count;
    std::int16_t* samples;
    std::ptrdiff_t stride;  ///< from one row of samples to the next
};

struct Loops {
    /// Adds to each pixel's error what its colour has moved, `to` less `from`.
    void (*moveErrors)(const std::uint16_t* from, const std::uint16_t* to,
                       const std::uint8_t* indices, int width, std::uint16_t* errors);

    /// Blurs errors along their row, by 1 2 3 2 1 sixteenths: two readable points stand on either
    /// side, one more may be read and written behind.
    void (*blurAlong)(const std::uint16_t* errors, int width, std::uint16_t* along);

    /// Blurs by 1 2 3 2 1 across five rows, and adds `ownWeight` eighths, at most kMostOwnWeight,
    /// of the middle row's own errors. One point more may be read and written behind.
    void (*blurDown)(const std::array<const std::uint16_t*, 5>& along, const std::uint16_t* errors,
                     int width, int ownWeight, std::uint16_t* field);

    /// Gives each pixel of a row the colour that suits its surroundings best: with d the change of
    /// its colour, the one that makes half + d * field least, if below 0. Errors, and the field of
    /// the pixels that follow, grow accordingly; the field at each pixel is added to its colour's
    /// sum. Pixels that changed are added to `changed`.
    void (*choose)(const ChoiceRow& row);

    /// Adds up `count` rows of `length` samples, each times its weight, and writes the sums shifted
    /// right by `shift`, rounded. Behind an odd number of rows and weights stand a further row,
    /// which one does not matter, and a weight of 0.
    void (*mixBytes)(const std::uint8_t* const* rows, const std::int16_t* weights, int count,
                     int length, int shift, std::int16_t* sums);
    void (*mixSamples)(const std::int16_t* const* rows, const std::int16_t* weights, int count,
                       int length, int shift, std::int16_t* sums);

    /// Adds up samples of rows, each times its weight.
    void (*weighAlong)(const AlongJob& job);

    /// Dequantizes and transforms blocks, from the first on, and returns how many are done. That is
    /// none where there are no vectors, or none for the shape, and fewer than all when a block's
    /// numbers do not fit into 16 bits on the way, as in damaged files. Samples are those that
    /// arithmetic on single numbers gives.
    int (*transform)(const IdctJob& job);

    /// Does the same for one block of 8 x 8, to bytes. False when it cannot.
    bool (*transformToBytes)(const std::int16_t* steps, int most, const std::int16_t* block,
                             std::uint8_t* samples, std::ptrdiff_t stride);

    /// Makes pixels of rows of luma and of differences of colour, from the first on, and returns
    /// how many are done.
    int (*yccToRgb)(const std::int16_t* const* rows, int width, std::uint8_t* rgb);
};

/// What loops may ask of a processor.
enum class Kind { Singles, Mmx, Sse2 };

/// Whether this machine runs loops of a kind: its processor has the instructions, and its system
/// keeps the registers of a program while another one runs.
bool CanRun(Kind kind);

/// The loops that this machine runs best, or of the kind that was forced.
const Loops& Chosen();

/// For tests and benchmarks: from now on these loops are run, which this machine must be able to.
void Force(Kind kind);

}  // namespace vistrel::loops
