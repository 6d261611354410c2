#include "tests/support/machine/setting_rows.h"

#include "tests/support/machine/machine.h"

namespace vistrel::test {

using core::Settings;

const std::vector<SettingRow>& SettingRows() {
    static const std::vector<SettingRow> rows = {
        {"SearchLogoPath", &Settings::searchLogoPath, 4, "C:\\PICS\\"},
        {"View", &Settings::view, 10, "1", 0, 0, 1},
        {"Synchronize logos", &Settings::synchronizeLogos, 1, "1"},
        {"StartUpDrive", &Settings::bootRoot, 3, "D"},
        {"DefaultLogoSet", &Settings::defaultLogoSet, 2, OddName() + ".SLS"},
        {"DefaultAction", &Settings::defaultAction, 9, "2", 0, 0, 2},
        {"CustomProgName", &Settings::customProgName, 7, "Painter"},
        {"CustomProgPath", &Settings::customProgPath, 8, "C:\\Tools\\PAINTER.EXE"},
        {"DeleteInTheRecycleBin", &Settings::deleteInTheRecycleBin, 11, "0", 1, 1},
        {"ConfirmLogosetDelete", &Settings::confirmLogosetDelete, 12, "1", 1, 1},
        {"ConfirmLogoTypeChange", &Settings::confirmLogoTypeChange, 13, "0", 1, 1},
        {"ShowSplashScreen", &Settings::showSplashScreen, 0, "0", 1, 0},
        {"LogoPath", &Settings::logoPath, 5, "C:\\machine\\logos\\"},
        {"ActionOnDoubleClick", &Settings::actionOnDoubleClick, 6, "-3"},
        {"WindowLeft", &Settings::windowLeft, 14, "-4"},
        {"WindowTop", &Settings::windowTop, 15, "25"},
        {"WindowWidth", &Settings::windowWidth, 16, "640"},
        {"WindowHeight", &Settings::windowHeight, 17, "452"},
        {"WindowMaximized", &Settings::windowMaximized, 18, "1"},
        {"AutoshowAnimation", &Settings::autoshowAnimation, 19, "1"},
        {"Thumbnails", &Settings::thumbnails, 20, "1", 0, 0, 1},
        {"ThumbnailSize", &Settings::thumbnailSize, 21, "-2"},
        {"Details", &Settings::details, 23, "1", 0, 0, 1},
        {"LeftOutOfRotation", &Settings::leftOutOfRotation, 22, "Blue/" + OddName()},
    };
    return rows;
}

std::vector<std::string> SettingNames() {
    std::vector<std::string> names;
    for (const SettingRow& row : SettingRows()) names.push_back(row.name);
    return names;
}

}  // namespace vistrel::test
