#include "adjust/live_screen.h"

#include <utility>

#include "pictures/compose/movement.h"

namespace vistrel::adjust {
namespace {

pictures::RgbPicture InColors(const screen::IndexedScreen& screen) {
    pictures::RgbPicture picture{screen.width, screen.height, {}};
    picture.pixels.reserve(screen.indices.size() * 3);
    for (const std::uint8_t index : screen.indices)
        picture.pixels.insert(picture.pixels.end(), screen.palette[index].begin(),
                              screen.palette[index].end());
    return picture;
}

}  // namespace

bool LiveScreen::Read(const std::string& path) {
    auto read = compose::ReadComposed(path);
    if (!read) return false;
    read_ = std::move(read);
    framed_.reset();
    return true;
}

pictures::PictureSize LiveScreen::TurnedSize(const compose::Composition& composition) const {
    return compose::SizeWhenTurned(read_->file, composition.orientation);
}

LiveScreen::Movement LiveScreen::MovementOf(const compose::Composition& composition) const {
    if (!read_->moving) return Movement::None;
    if (!compose::LeavesColors(*read_->moving)) return Movement::LacksColors;
    return compose::StaysInPlace(composition) ? Movement::Kept : Movement::LostByFraming;
}

bool LiveScreen::Holds(const compose::Composition& composition) const {
    return framed_ && orientation_ == composition.orientation && framing_ == composition.framing;
}

void LiveScreen::Keep(compose::Framed framed, const compose::Composition& composition, bool fine) {
    framed_ = std::move(framed);
    orientation_ = composition.orientation;
    framing_ = composition.framing;
    fine_ = fine;
}

pictures::RgbPicture LiveScreen::Quick(const compose::Composition& composition) {
    if (!Holds(composition)) Keep(compose::Frame(*read_, composition), composition, false);
    return compose::Adjust(*framed_, composition);
}

pictures::RgbPicture LiveScreen::Finished(const compose::Composition& composition) {
    if (!Holds(composition) || !fine_)
        Keep(compose::FrameFinely(*read_, composition), composition, true);
    pictures::RgbPicture screen = compose::Adjust(*framed_, composition);
    const auto reduced = compose::ReduceMoving(
        read_->moving, compose::LevelsFor(composition.light, *framed_), screen, composition);
    return reduced ? InColors(*reduced) : std::move(screen);
}

const pictures::RgbPicture& LiveScreen::Original(const compose::Composition& composition) {
    if (!Holds(composition)) Keep(compose::Frame(*read_, composition), composition, false);
    return framed_->screen;
}

}  // namespace vistrel::adjust
