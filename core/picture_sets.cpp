#include "core/picture_sets.h"

#include <optional>
#include <utility>

#include "core/entry_name.h"
#include "core/generali.h"
#include "core/library.h"
#include "core/locations.h"
#include "core/set_in_making.h"
#include "pictures/compose/stages.h"
#include "platform/file_contents.h"
#include "platform/files.h"

namespace vistrel::core {
namespace {

constexpr const char* kSingleEnding = ".sls";
constexpr std::size_t kEndingLength = 4;

/// A picture's name without what tells its format. An ending that makes a set a single-logo set is
/// for the kind to say.
std::string BaseName(std::string picture) {
    std::string name = GetFileName(picture);
    name.resize(name.size() - kEndingLength);
    while (IsSingleLogoSet(name)) name.resize(name.size() - kEndingLength);
    return name;
}

std::optional<screen::IndexedScreen> ScreenOf(const std::string& picture,
                                              const compose::Composition& composition) {
    const auto framed = compose::ReadFramed(picture, composition);
    if (!framed) return std::nullopt;
    return compose::Reduce(compose::Adjust(*framed, composition), composition.dither);
}

}  // namespace

PictureSets::PictureSets(std::string library, std::vector<std::string> pictures, SetKind kind,
                         compose::FramingKind framing)
    : library_(std::move(library)), pictures_(std::move(pictures)), kind_(kind) {
    composition_.framing.kind = framing;
}

std::size_t PictureSets::ScreensOfASet() const { return kind_ == SetKind::StartupOnly ? 1 : 3; }

void PictureSets::Next() {
    if (IsDone()) return;
    const std::string& picture = pictures_[next_++];
    auto screen = ScreenOf(picture, composition_);
    if (screen)
        screens_.push_back({picture, std::move(*screen)});
    else
        notRead_.push_back(picture);
    if (screens_.size() == ScreensOfASet() || (IsDone() && !screens_.empty())) WriteSet();
}

void PictureSets::Stop() {
    screens_.clear();
    pictures_.resize(next_);
}

// The first picture's name, with a number where there is a set of that name.
std::string PictureSets::NameOfNext() const {
    const std::string ending = kind_ == SetKind::StartupOnly ? kSingleEnding : "";
    return FreeName(BaseName(screens_.front().picture), ending, [&](const std::string& name) {
        return platform::FileAttributes(library_ + name).has_value();
    });
}

void PictureSets::WriteSet() {
    const std::string name = NameOfNext();
    if (SetFolderName(name, library_) == name && MakeSet(name)) {
        made_.push_back(name);
        screens_.clear();
        return;
    }
    for (const Screen& screen : screens_) notWritten_.push_back(screen.picture);
    notWritten_.insert(notWritten_.end(), pictures_.begin() + static_cast<std::ptrdiff_t>(next_),
                       pictures_.end());
    Stop();
}

bool PictureSets::MakeSet(const std::string& name) const {
    SetInMaking set(library_);
    return !set.Folder().empty() && WriteScreens(set.Folder()) && set.Finish(name);
}

bool PictureSets::WriteScreens(const std::string& folder) const {
    for (std::size_t i = 0; i < screens_.size(); ++i) {
        const std::string file = folder + kScreenFileNames[i];
        if (!compose::Write(file, screens_[i].screen) || !platform::FlushToDisk(file)) return false;
    }
    return true;
}

}  // namespace vistrel::core
