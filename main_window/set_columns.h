// The columns of the list of sets. What they say of a set is read when it is first wanted.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "controls/list_view.h"
#include "core/found_sets.h"

namespace vistrel::main_window {

class SetColumns {
 public:
    /// `set` tells the set of a name.
    SetColumns(controls::ListView& list, std::function<core::LogoSet(const std::string& name)> set);

    const core::SetDetails& Of(const std::string& name);
    /// Sets may have other screens by now.
    void Forget() { known_.clear(); }

 private:
    std::function<core::LogoSet(const std::string&)> set_;
    std::map<std::string, core::SetDetails> known_;
};

}  // namespace vistrel::main_window
