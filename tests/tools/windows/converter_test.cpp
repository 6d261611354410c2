// The converter as it ships, started without a console: its files are those of every other build.
#include <gtest/gtest.h>
#include <windows.h>

#include <sstream>

#include "pictures/compose/stages.h"
#include "pictures/file.h"
#include "tests/support/picture_files/md5.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using namespace pictures;

namespace {

struct Outcome {
    DWORD status = 99;
    std::string text;  ///< of both streams
};

/// Starts the converter, which has no console but a file to write to, and waits for its end.
Outcome RunConverter(const std::string& arguments) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE written = CreateFileA("said.txt", GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = written;
    PROCESS_INFORMATION process = {};
    std::string line = "logo-convert.exe " + arguments;
    Outcome outcome;
    if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, DETACHED_PROCESS, nullptr,
                       nullptr, &startup, &process)) {
        if (WaitForSingleObject(process.hProcess, 60000) == WAIT_OBJECT_0)
            GetExitCodeProcess(process.hProcess, &outcome.status);
        CloseHandle(process.hProcess);
        CloseHandle(process.hThread);
    }
    CloseHandle(written);
    const auto said = ReadWholeFile("said.txt");
    if (said) outcome.text.assign(said->begin(), said->end());
    return outcome;
}

/// What is recorded of the native build's conversion, by the words that stand behind it.
std::string RecordedDigest(const std::string& what) {
    const auto file = ReadWholeFile("digests.txt");
    std::istringstream lines(file ? std::string(file->begin(), file->end()) : "");
    for (std::string line; std::getline(lines, line);)
        if (line.ends_with("  " + what)) return line.substr(0, line.find(' '));
    return "(not recorded)";
}

TEST(Converter, MakesTheVeryScreensOfTheNativeBuild) {
    for (const char* kind : {"baseline", "progressive"}) {
        const Outcome outcome = RunConverter(std::string(kind) + ".jpg C:\\test\\LOGO.SYS");
        EXPECT_EQ(outcome.status, 0u);
        EXPECT_EQ(outcome.text, "");
        const auto screen = ReadWholeFile("LOGO.SYS");
        ASSERT_TRUE(screen.has_value());
        EXPECT_EQ(Md5(*screen), RecordedDigest(std::string("photograph, ") + kind));
        DeleteFileA("LOGO.SYS");
    }
}

TEST(Converter, TakesItsOptions) {
    ASSERT_EQ(RunConverter("--fill --turn 90 --gamma 120 baseline.jpg LOGO.SYS").status, 0u);
    compose::Composition composition;
    composition.framing.kind = compose::FramingKind::Fill;
    composition.orientation.quarterTurns = 1;
    composition.light.gamma = 120;
    ASSERT_EQ(compose::MakeScreen("baseline.jpg", "wanted.sys", composition),
              ConversionResult::Written);
    EXPECT_EQ(ReadWholeFile("LOGO.SYS"), ReadWholeFile("wanted.sys"));
    DeleteFileA("LOGO.SYS");
}

TEST(Converter, ItsHelpFitsAScreenOf80By25Characters) {
    const Outcome help = RunConverter("--help");
    EXPECT_EQ(help.status, 0u);
    EXPECT_NE(help.text.find("--fill"), std::string::npos);
    std::istringstream lines(help.text);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_TRUE(line.ends_with('\r'));  // as Notepad wants it
        EXPECT_LE(line.size(), 80u) << line;
    }
    EXPECT_LT(count, 25);
}

TEST(Converter, SaysWhatIsWrongAndEndsWithThatStatus) {
    const Outcome misused = RunConverter("--turn 45 baseline.jpg LOGO.SYS");
    EXPECT_EQ(misused.status, 2u);
    EXPECT_NE(misused.text.find("--turn wants 0, 90, 180 or 270"), std::string::npos);
    const Outcome missing = RunConverter("missing.gif LOGO.SYS");
    EXPECT_EQ(missing.status, 1u);
    EXPECT_NE(missing.text.find("missing.gif: cannot be read"), std::string::npos);
    EXPECT_EQ(ReadWholeFile("LOGO.SYS"), std::nullopt);
}

}  // namespace
}  // namespace vistrel::test
