// Which sets the list shows, and in which order.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/set_details.h"

namespace vistrel::core {

/// What the list says of a set, in the order of its columns.
enum class SetColumn { Name, Kind, Screens, MovingColors, Date, Size };

/// A set's text in one of the columns.
std::string TextOfSet(const std::string& name, const SetDetails& details, SetColumn column);

struct SetOrder {
    /// None: as the logo folder lists the sets, which is the order of Rotaline's turns.
    std::optional<SetColumn> by;
    bool backwards = false;

    bool operator==(const SetOrder&) const = default;
};

/// The order that a click on a column's heading chooses behind this one: by that column, backwards,
/// and the folder's own.
SetOrder NextOrder(SetOrder order, SetColumn clicked);

/// Whether the details of sets must be known to put them into an order.
bool NeedsDetails(SetOrder order);

/// The sets whose names hold `text`, in whatever case. An empty text is in every name.
std::vector<std::string> FoundSets(const std::vector<std::string>& sets, const std::string& text);

/// Puts sets that come in the folder's order into another one, names as the system sorts them. Sets
/// that are alike stay in the folder's order. `detailsOf` is asked if they are needed.
void SortSets(std::vector<std::string>& sets, SetOrder order,
              const std::function<const SetDetails&(const std::string& name)>& detailsOf);

}  // namespace vistrel::core
