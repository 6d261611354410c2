// Which sets the list shows, and in which order.
#pragma once

#include <string>
#include <vector>

namespace vistrel::core {

enum class SetOrder {
    Folder,  ///< as the logo folder lists them, which is the order of Rotaline's turns
    Name,    ///< as the system sorts names
    NameBackwards,
};

/// The order that a click on the heading of the names chooses behind this one: it goes round.
SetOrder NextOrder(SetOrder order);

/// The sets whose names hold `text`, in whatever case, in this order. An empty text is in every
/// name. `sets` come in the folder's order.
std::vector<std::string> FoundSets(const std::vector<std::string>& sets, const std::string& text,
                                   SetOrder order);

}  // namespace vistrel::core
