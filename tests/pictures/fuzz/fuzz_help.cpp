// Any bytes as a topic source of the help file: it is compiled, or what is wrong is said with a
// place.
#include <cstdint>
#include <cstdlib>

#include "help/compiler/help_file.h"

using namespace vistrel::help;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    SourceErrors errors;
    const auto loadPicture = [&](const std::string& name) -> std::optional<std::string> {
        // The source itself will do for a picture that is none.
        return name.size() % 2 ? std::optional(text) : std::nullopt;
    };
    const std::string file = CompileHelp({{"topics.txt", text}}, loadPicture, errors);
    if (errors.empty() && file.empty()) std::abort();
    for (const SourceError& error : errors)
        if (error.message.empty()) std::abort();
    return 0;
}
