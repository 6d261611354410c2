// Walks through the markers of a JPEG file from scan to scan.
#pragma once

#include <memory>

#include "pictures/jpg/exif_orientation.h"
#include "pictures/jpg/frame.h"

namespace vistrel::jpg {

/// Reads the segments of a file in order. NextScan stops behind each scan header; the caller reads
/// the coded data and says by ContinueAt where they ended.
class JpgMarkers {
 public:
    explicit JpgMarkers(const pictures::PictureFile& file);

    /// Goes on to the next scan. False at the end of the picture and when nothing further can be
    /// understood. The frame is there when this has been true once.
    bool NextScan();

    /// Makes the Huffman tables that the scan is read by. False when one of them is of no code that
    /// there can be.
    bool BuildTables();

    /// Goes on behind the scan's coded data without reading them.
    void PassOverScan();

    /// Goes on reading markers at `position`.
    void ContinueAt(std::size_t position) { position_ = position; }

    const JpgFrame& frame() const { return frame_; }
    const JpgScan& scan() const { return scan_; }
    JpgTables& tables() { return *tables_; }
    int orientation() const { return orientation_; }

    JpgColor Color() const;

    /// True when the ink values are stored inverted, 255 for none, as Adobe's APP14 segment
    /// announces.
    bool InksAreInverted() const { return adobeTransform_ >= 0; }

 private:
    bool ReadSegment(int marker, pictures::FileBytes content);
    bool ReadFrame(pictures::FileBytes content);
    bool LayOut();
    bool ReadScan(pictures::FileBytes content);
    bool ReadQuantTables(pictures::FileBytes content);
    bool ReadHuffmanTables(pictures::FileBytes content);
    void ReadApplication(int marker, pictures::FileBytes content);
    void SupplyUsualTables();
    template <class UseTable>
    bool ForEachTable(UseTable use);
    int HeightBehindScan();

    const pictures::PictureFile whole_;
    pictures::FileWindow file_;
    std::size_t position_ = 0;
    JpgFrame frame_;
    JpgScan scan_;
    std::unique_ptr<JpgTables> tables_;  // too large for the stack of a window procedure
    int orientation_ = 0;
    bool hasJfif_ = false;
    int adobeTransform_ = -1;  // -1: no such segment
};

}  // namespace vistrel::jpg
