// Which commands of the Action menu are available, decided from what the session holds.
#pragma once

namespace vistrel::editor {

/// What the decision depends on.
struct SessionFacts {
    bool setChanged = false;   ///< slots or type changed since the set was loaded or saved
    bool nameChanged = false;  ///< a name was typed since then
    bool setLoaded = false;    ///< a set is being edited, not a new one built
    bool named = false;        ///< the name field is not empty
};

/// Which commands are enabled.
struct CommandStatus {
    bool create = false;
    bool update = false;
    bool deleteSet = false;

    bool operator==(const CommandStatus&) const = default;
};

/// The status that follows from the facts; what they leave open stays as `before` has it.
CommandStatus StatusOfCommands(const SessionFacts& facts, CommandStatus before);

}  // namespace vistrel::editor
