// A user who does anything, by seed, things and minutes of the environment (see tests/monkey/run).
#include "tests/monkey/monkey.h"

#include <cstdlib>

namespace vistrel::test {
namespace {

/// A number from the environment.
int Wanted(const char* name, int otherwise) {
    const char* const text = std::getenv(name);
    return text && *text ? std::atoi(text) : otherwise;
}

TEST_F(Monkey, FindsSetsAndScreensAsTheyMustBe) {
    constexpr int kMinutes = 5;
    MakeFolders("C:\\Out\\");
    MakeFolders("C:\\Pictures\\");
    for (const std::string& name : NamesIn("C:\\test\\pictures\\"))
        Put("C:\\Pictures\\" + name, Contents("C:\\test\\pictures\\" + name).value_or(""));
    Act(static_cast<unsigned>(Wanted("VISTREL_MONKEY_SEED", 1)),
        Wanted("VISTREL_MONKEY_STEPS", 1000000),
        static_cast<DWORD>(Wanted("VISTREL_MONKEY_MINUTES", kMinutes)) * 60000);
    RemoveTree("C:\\Out");
    RemoveTree("C:\\Pictures");
}

}  // namespace
}  // namespace vistrel::test
