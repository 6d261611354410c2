// Times the companions, from start to end, against bare copies of the same files, side by side.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/windows/machine.h"

namespace {

using vistrel::bench::kLogos;

constexpr int kRounds = 25;
const std::string kWindows = "C:\\windows\\";

void WriteScreen(const std::string& path, char filling) {
    const std::string bytes(129078, filling);
    HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
}

/// Two sets whose screens differ, in the logo folder that the settings name.
void PrepareMachine() {
    CreateDirectoryA("C:\\logos", nullptr);
    for (const char* set : {"Blue", "Red"}) {
        CreateDirectoryA((kLogos + set).c_str(), nullptr);
        for (const char* screen : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"}) {
            WriteScreen(kLogos + set + "\\" + screen, set[0]);
        }
    }
    vistrel::bench::Store("LogoPath", kLogos);
}

/// Milliseconds from a program's start to its end; the exit code has to be 0.
double TimeOf(std::string commandLine) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER begun;
    LARGE_INTEGER ended;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begun);
    CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                   &startup, &process);
    WaitForSingleObject(process.hProcess, 60000);
    QueryPerformanceCounter(&ended);
    DWORD exitCode = 1;
    GetExitCodeProcess(process.hProcess, &exitCode);
    if (exitCode != 0) std::printf("%s returned %lu\n", commandLine.c_str(), exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return 1000.0 * static_cast<double>(ended.QuadPart - begun.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

/// Other programs of the machine can only make a start longer: the least of many is its own.
double Least(const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
}

/// Copies of a set's screens, by a command line of bare_copy.
std::string BareCopy(const std::string& set, bool withStartup) {
    std::string line = "bare_copy.exe";
    // Mirrorkin waits for the disk, installing does not.
    if (!withStartup) line += " /flush";
    if (withStartup) line += " " + kLogos + set + "\\LOGO.SYS C:\\LOGO.SYS";
    for (const char* screen : {"LOGOW.SYS", "LOGOS.SYS"}) {
        line += " " + kLogos + set + "\\" + screen + " " + kWindows + screen;
    }
    return line;
}

void Print(const char* name, const std::vector<double>& times, const std::vector<double>& bare) {
    std::printf("%-10s %7.1f ms, bare copies %7.1f ms, ratio %.2f (goal: 1.5)\n", name,
                Least(times), Least(bare), Least(times) / Least(bare));
}

void MeasureChange(const char* name, const std::string& program) {
    std::vector<double> times;
    std::vector<double> bare;
    for (int round = 0; round < kRounds; ++round) {
        bare.push_back(TimeOf(BareCopy(round % 2 ? "Blue" : "Red", true)));
        times.push_back(TimeOf(program));
    }
    Print(name, times, bare);
}

void MeasureMirrorkin(const char* name, bool somethingDiffers) {
    std::vector<double> times;
    std::vector<double> bare;
    for (int round = 0; round < kRounds; ++round) {
        const std::string set = round % 2 ? "Blue" : "Red";
        const std::string other = round % 2 ? "Red" : "Blue";
        bare.push_back(TimeOf(BareCopy(somethingDiffers ? other : set, false)));
        WritePrivateProfileStringA("Settings", "Path", (kLogos + set).c_str(),
                                   "C:\\test\\Mirrorkin.ini");
        times.push_back(TimeOf("Mirrorkin.exe /auto"));
    }
    Print(name, times, bare);
}

}  // namespace

int main() {
    PrepareMachine();
    TimeOf(BareCopy("Blue", true));  // brings everything into the caches
    MeasureChange("Rotaline", "Rotaline.exe");
    MeasureChange("Shufflet", "Shufflet.exe");
    MeasureMirrorkin("Mirrorkin", true);
    MeasureMirrorkin("unchanged", false);
    std::printf("Test program ended with status 0\n");
    return 0;
}
