// What a companion program returns when it ends.
#pragma once

namespace vistrel::companions {

enum class Outcome {
    Done = 0,
    VistrelRuns = 1,         ///< nothing was changed: Vistrel would overwrite it when it closes
    NoSets = 2,              ///< nothing was changed: the logo folder holds no set with a LOGO.SYS
                             ///< that takes part
    ScreenNotCopied = 3,     ///< the set lacks a screen, or an installed one cannot be replaced
    SetNotRecorded = 4,      ///< "DefaultLogoSet" could not be written
    NotRegistered = 5,       ///< Mirrorkin's entry or its ini file could not be written
    NoFolderNamed = 6,       ///< Mirrorkin.ini is missing or names no folder
    FolderNotThere = 7,      ///< the folder that Mirrorkin.ini names is not there
    LogoFolderNotThere = 8,  ///< nothing was changed: the stored logo folder is not there, or
                             ///< which one it is cannot be read
};

}  // namespace vistrel::companions
