#include "main_window/set_columns.h"

#include <utility>

namespace vistrel::main_window {

SetColumns::SetColumns(controls::ListView& list,
                       std::function<core::LogoSet(const std::string& name)> set)
    : set_(std::move(set)) {
    list.SetDetailColumns("A name of usual length", {
                                                        {"Kind", "Multi logo"},
                                                        {"Screens", "Startup, wait, shutdown"},
                                                        {"Moving colours", "255", true},
                                                        {"Date", "00/00/0000"},
                                                        {"Size", "0000 KB", true},
                                                    });
    list.Detail = [this, &list](int index, int column) {
        const std::string name = list.ItemText(index);
        // The name itself is the first of a set's columns.
        return core::TextOfSet(name, Of(name), static_cast<core::SetColumn>(column + 1));
    };
}

const core::SetDetails& SetColumns::Of(const std::string& name) {
    const auto known = known_.find(name);
    if (known != known_.end()) return known->second;
    return known_.emplace(name, core::DetailsOf(set_(name))).first->second;
}

}  // namespace vistrel::main_window
