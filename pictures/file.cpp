// By the C library, which takes ANSI paths everywhere. What can fail is counted as the operations
// of platform/ are, and can be made to fail like them.
#include "pictures/file.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "platform/fault.h"

namespace vistrel::pictures {

namespace {

namespace fault = platform::fault;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File Open(const std::string& path, const char* how) { return File(std::fopen(path.c_str(), how)); }

// -1 for what has no size, such as a folder where the C library opens these.
long SizeOf(std::FILE* file) {
    if (std::fseek(file, 0, SEEK_END) != 0) return -1;
    const long size = std::ftell(file);
    return std::fseek(file, 0, SEEK_SET) == 0 ? size : -1;
}

// A file that is larger than any picture counts as one without a size.
std::optional<std::size_t> PlausibleSizeOf(std::FILE* file) {
    const long size = SizeOf(file);
    if (size < 0 || size > kLargestFile) return std::nullopt;
    return static_cast<std::size_t>(size);
}

class OpenedFile : public FileOnDisk {
 public:
    // Its pieces are large: the C library need not read ahead.
    OpenedFile(File file, std::size_t size) : file_(std::move(file)), size_(size) {
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    }

    std::size_t size() const override { return size_; }

    // However many pieces there are, reading them is one operation that can be made to fail.
    void Read(std::size_t at, std::span<std::uint8_t> to) override {
        if (!isBegun_) failed_ = fault::ShouldFail();
        isBegun_ = true;
        failed_ = failed_ || std::fseek(file_.get(), static_cast<long>(at), SEEK_SET) != 0 ||
                  std::fread(to.data(), 1, to.size(), file_.get()) != to.size();
        if (failed_) std::fill(to.begin(), to.end(), std::uint8_t{0});
    }

    bool HasFailed() const override { return failed_; }

 private:
    File file_;
    const std::size_t size_;
    bool isBegun_ = false;
    bool failed_ = false;
};

std::optional<std::vector<std::uint8_t>> ReadNext(std::FILE* file, std::size_t count) {
    std::vector<std::uint8_t> bytes(count);
    if (std::fread(bytes.data(), 1, count, file) != count) return std::nullopt;
    return bytes;
}

/// A file beside `path` that is new. What already has its name, a file or something that cannot be
/// opened, is left alone; of so many names one is free where files can be made at all.
struct NewFile {
    std::string path;
    File file;
};

NewFile MakeFileBeside(const std::string& path) {
    constexpr unsigned kNames = 50;
    if (fault::ShouldFail()) return {};
    const std::size_t slash = path.find_last_of("\\/:");
    const std::string folder = slash == std::string::npos ? "" : path.substr(0, slash + 1);
    for (unsigned number = 0; number < kNames; ++number) {
        char name[16];  // short enough for every file system
        std::snprintf(name, sizeof name, "~vs%05u.tmp", number);
        if (Open(folder + name, "rb")) continue;
        if (File file = Open(folder + name, "wb")) return {folder + name, std::move(file)};
    }
    return {};
}

bool Rename(const std::string& from, const std::string& to) {
    return !fault::ShouldFail() && std::rename(from.c_str(), to.c_str()) == 0;
}

/// As long as the file's own name, and found again by whoever comes after a power cut.
std::string AsideOf(std::string path) {
    path.back() = '~';
    return path;
}

#ifdef _WIN32
/// The name by which a file steps aside: its own one of those, or another where that is taken.
std::string FreeAsideOf(const std::string& path) {
    if (!Open(AsideOf(path), "rb")) return AsideOf(path);
    const std::string other = MakeFileBeside(path).path;
    if (!other.empty()) std::remove(other.c_str());
    return other;
}

// There the C library does not rename onto a file that exists: the former one steps aside, and
// comes back if the new one cannot take its place.
bool MoveOver(const std::string& from, const std::string& to) {
    if (Rename(from, to)) return true;
    // A folder, or a file that must not be written to, would step aside as readily.
    if (!Open(to, "r+b")) return false;
    const std::string aside = FreeAsideOf(to);
    if (aside.empty() || !Rename(to, aside)) return false;
    const bool moved = Rename(from, to);
    if (moved) {
        std::remove(aside.c_str());
    } else {
        Rename(aside, to);
    }
    return moved;
}
#else
bool MoveOver(const std::string& from, const std::string& to) { return Rename(from, to); }
#endif

}  // namespace

std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::string& path) {
    if (fault::ShouldFail()) return std::nullopt;
    const File file = Open(path, "rb");
    if (!file) return std::nullopt;
    const std::optional<std::size_t> size = PlausibleSizeOf(file.get());
    return size ? ReadNext(file.get(), *size) : std::nullopt;
}

std::unique_ptr<FileOnDisk> FileOnDisk::Open(const std::string& path) {
    if (fault::ShouldFail()) return nullptr;
    File file = pictures::Open(path, "rb");
    if (!file) return nullptr;
    const std::optional<std::size_t> size = PlausibleSizeOf(file.get());
    return size ? std::make_unique<OpenedFile>(std::move(file), *size) : nullptr;
}

std::optional<std::vector<std::uint8_t>> ReadStartOfFile(const std::string& path,
                                                         std::size_t count) {
    if (fault::ShouldFail()) return std::nullopt;
    const File file = Open(path, "rb");
    return file ? ReadNext(file.get(), count) : std::nullopt;
}

FileWriter::FileWriter(std::string path) : path_(std::move(path)) {
    NewFile made = MakeFileBeside(path_);
    temporary_ = made.path;
    file_ = made.file.release();
}

FileWriter::~FileWriter() {
    if (file_) std::fclose(file_);
    if (!temporary_.empty()) std::remove(temporary_.c_str());
}

bool FileWriter::Write(FileBytes bytes) {
    return file_ && !fault::ShouldFail() &&
           std::fwrite(bytes.data(), 1, bytes.size(), file_) == bytes.size();
}

bool FileWriter::Finish() {
    if (!file_) return false;
    // Closing writes what is still buffered: the disk may turn out to be full only here.
    if (std::fclose(std::exchange(file_, nullptr)) != 0 || !MoveOver(temporary_, path_))
        return false;
    temporary_.clear();
    return true;
}

bool WriteWholeFile(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    FileWriter writer(path);
    return writer.Write(bytes) && writer.Finish();
}

void EndInterruptedWriting(const std::string& path) {
    if (path.empty()) return;
    if (!Open(path, "rb")) Rename(AsideOf(path), path);
}

}  // namespace vistrel::pictures
