// A user who says yes to everything: answers what is asked, and closes what is opened.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "tests/support/user/user.h"

namespace vistrel::test {

/// While it lives, on a thread of its own: presses Yes or OK of every message box and dialog of
/// this process, gives the path of a file to a dialog that asks for one, and closes each of our
/// windows once `inWindow` has acted in it. The windows that were open before are left alone.
class Answering {
 public:
    Answering(std::string file, std::function<void(HWND window)> inWindow);
    ~Answering();
    Answering(const Answering&) = delete;
    Answering& operator=(const Answering&) = delete;

    /// How many of our windows it has seen.
    int Windows() const { return windows_; }
    /// How many dialogs it has given a file.
    int FilesGiven() const { return filesGiven_; }

 private:
    void Answer();
    void AnswerDialog(HWND dialog);
    void CloseWindow(HWND window);

    std::string file_;
    std::function<void(HWND window)> inWindow_;
    std::set<HWND> before_;
    std::map<HWND, DWORD> acted_;  ///< and when
    std::atomic<bool> done_ = false;
    std::atomic<int> windows_ = 0;
    std::atomic<int> filesGiven_ = 0;
    user::Meanwhile thread_;
};

/// Runs something on the thread of a window of this process, and waits until it is done.
void RunOnThreadOf(HWND window, const std::function<void()>& action);

}  // namespace vistrel::test
