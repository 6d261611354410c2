// A drop-down list of the machine's drives: a picture of the kind of drive, its letter and the
// label of its volume.
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"
#include "controls/owned_handle.h"

namespace vistrel::controls {

/// The template makes the combo box an owner-drawn drop-down list that holds texts.
class DriveList : public Control {
 public:
    /// Takes the 16 x 16 pictures of floppy, hard disk, CD-ROM, network drive and memory disk, in
    /// this order, from a bitmap resource. Pixels of `transparent` (blue-green-red) show the
    /// background.
    void LoadIcons(int bitmapResource, long transparent);
    /// Lists the drives that there are now.
    void Fill();

    /// The chosen entry, "C:" or "C: [LABEL]"; empty when none is.
    std::string Drive() const;
    /// Chooses the entry whose first two characters are those of `drive`, in any case. False when
    /// there is none; the choice then stays. Change does not run.
    bool SetDrive(const std::string& drive);

    /// The user chose another drive.
    std::function<void()> Change;

    void OnCommand(int code) override;
    void OnDrawItem(const void* item) override;

 protected:
    void OnAttach() override;

 private:
    OwnedImageList icons_;
    std::string lastDrive_;  ///< the choice that Change was last run for
};

}  // namespace vistrel::controls
