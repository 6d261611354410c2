#include "editor/command_status.h"

namespace vistrel::editor {

CommandStatus StatusOfCommands(const SessionFacts& facts, CommandStatus before) {
    CommandStatus status = before;
    if (facts.setChanged || facts.nameChanged) status.deleteSet = false;
    if (facts.setLoaded) {
        status.update = true;
        status.create = !facts.setChanged || facts.nameChanged;
    } else {
        status.create = facts.named;
    }
    return status;
}

}  // namespace vistrel::editor
