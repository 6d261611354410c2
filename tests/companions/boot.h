// A machine at boot for tests of the companion programs: the real Windows directory and boot root,
// and the real programs beside the test.
#pragma once

#include <string>
#include <vector>

#include "tests/support/machine/machine.h"

namespace vistrel::test {

/// What LOGO.SYS, LOGOW.SYS and LOGOS.SYS hold, "-" where one is not there.
using Screens = std::vector<std::string>;

class Boot : public Machine {
 protected:
    Boot();
    ~Boot() override;

    /// What one start of a program came to.
    struct Start {
        unsigned long exitCode = 0xFFFFFFFF;
        bool ended = false;
        bool showedAWindow = false;
    };
    /// Starts a program beside the test as Windows does at boot and waits until it ends.
    Start Run(const std::string& commandLine);
    /// The exit code of a program that has to end by itself and to show nothing.
    unsigned long RunUnseen(const std::string& commandLine);

    /// Makes a set with its three screens ("<name> LOGO.SYS" and so on).
    void PutSet(const std::string& name) { PutScreens(logos + name + "\\", name); }
    /// The sets in the order in which the folder lists them.
    Names SetsInOrder() const;
    /// Puts "old ..." screens into the places of the installed ones.
    void PutInstalled();
    Screens Installed() const;
    std::string InstalledSet() const;

    const std::string windows = "C:\\windows\\";
    const std::string bin = "C:\\test\\";
    const Screens old = {"old LOGO.SYS", "old LOGOW.SYS", "old LOGOS.SYS"};

 private:
    void CleanUp();
};

}  // namespace vistrel::test
