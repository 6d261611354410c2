// Compiles sources in a test and reads the result back.
#pragma once

#include <string>
#include <vector>

#include "help/compiler/help_file.h"
#include "tests/help/help_reader.h"

namespace vistrel::help_test {

struct Compiled {
    std::string file;
    std::vector<std::string> errors;  ///< each as FILE:LINE: MESSAGE
};

/// Compiles one source called "test.txt". Pictures are taken from `pictures`, name and bytes.
inline Compiled Compile(const std::string& source,
                        const std::map<std::string, std::string>& pictures = {}) {
    help::SourceErrors errors;
    const auto load = [&](const std::string& name) -> std::optional<std::string> {
        const auto found = pictures.find(name);
        if (found == pictures.end()) return std::nullopt;
        return found->second;
    };
    Compiled result;
    result.file = help::CompileHelp({{"test.txt", source}}, load, errors);
    for (const help::SourceError& error : errors)
        result.errors.push_back(error.place.file + ":" + std::to_string(error.place.line) + ": " +
                                error.message);
    return result;
}

/// The same, where nothing may be wrong.
inline ReadHelp CompileAndRead(const std::string& source,
                               const std::map<std::string, std::string>& pictures = {}) {
    const Compiled compiled = Compile(source, pictures);
    if (!compiled.errors.empty()) throw std::runtime_error(compiled.errors.front());
    return ReadHelpFile(compiled.file);
}

}  // namespace vistrel::help_test
