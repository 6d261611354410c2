// The help compiler as the build calls it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>

#include "tests/help/help_reader.h"

namespace vistrel::help_test {
namespace {

namespace fs = std::filesystem;

class HelpCompilerProgram : public testing::Test {
 protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "help_test.XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name;
    }
    void TearDown() override { fs::remove_all(folder_); }

    void Write(const std::string& name, const std::string& text) {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    std::string Read(const std::string& name) {
        std::ifstream file(folder_ / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    // Runs the compiler in the folder; its messages go to the file "messages".
    int Run(const std::string& arguments) {
        const std::string command =
            "cd '" + folder_.string() + "' && '" HELP_COMPILER "' " + arguments + " >messages 2>&1";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fs::path folder_;
};

TEST_F(HelpCompilerProgram, WritesTheHelpFileOfAllItsSources) {
    Write("a.txt", "@help H\n@topic a\n@title A\nTo {jump:b|B}.\n");
    Write("b.txt", "@topic b\n@title B\nText.\n");
    EXPECT_EQ(Run("out.hlp . a.txt b.txt"), 0);
    EXPECT_EQ(Read("messages"), "");
    EXPECT_EQ(ReadHelpFile(Read("out.hlp")).topics.size(), 2u);
}

TEST_F(HelpCompilerProgram, NamesFileAndLineAndWritesNothing) {
    Write("a.txt", "@help H\n@topic a\n@title A\nText.\n");
    Write("b.txt", "@topic b\n@title B\n\nTo {jump:c|C}.\n");
    EXPECT_EQ(Run("out.hlp . a.txt b.txt"), 1);
    EXPECT_EQ(Read("messages"), "b.txt:4: there is no topic 'c' to link to\n");
    EXPECT_FALSE(fs::exists(folder_ / "out.hlp"));
}

TEST_F(HelpCompilerProgram, SourceThatIsNotThereIsNamed) {
    EXPECT_EQ(Run("out.hlp . missing.txt"), 1);
    EXPECT_EQ(Read("messages"), "missing.txt:0: cannot be read\n");
}

TEST_F(HelpCompilerProgram, PlaceThatCannotBeWrittenIsNamed) {
    Write("a.txt", "@help H\n@topic a\n@title A\nText.\n");
    EXPECT_EQ(Run("missing/out.hlp . a.txt"), 1);
    EXPECT_EQ(Read("messages"), "missing/out.hlp: cannot be written\n");
}

TEST_F(HelpCompilerProgram, TellsHowToCallIt) {
    EXPECT_EQ(Run("out.hlp"), 1);
    EXPECT_EQ(Read("messages"), "usage: help_compiler OUTPUT PICTURE_FOLDER SOURCE...\n");
}

}  // namespace
}  // namespace vistrel::help_test
