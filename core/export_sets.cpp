#include "core/export_sets.h"

#include "archive/zip_writer.h"
#include "core/logo_set.h"
#include "core/replacing.h"
#include "core/slot_file.h"
#include "pictures/file.h"
#include "platform/code_pages.h"
#include "platform/file_time.h"

namespace vistrel::core {
namespace {

class SetsWriter {
 public:
    SetsWriter(const std::string& library, const std::string& path)
        : library_(library),
          file_(path),
          zip_([this](pictures::FileBytes bytes) { return file_.Write(bytes); }) {}

    ExportOutcome Write(const std::vector<std::string>& names, const Progress& progress) {
        std::vector<std::string> notRead;
        for (std::size_t done = 0; done < names.size(); ++done) {
            if (!progress(static_cast<double>(done) / names.size()))
                return {ExportResult::Stopped, {}};
            const ExportResult result = AddSet({library_, names[done]});
            if (result == ExportResult::NotWritten) return {result, {}};
            if (result == ExportResult::NotRead) notRead.push_back(names[done]);
        }
        if (!notRead.empty()) return {ExportResult::NotRead, notRead};
        if (screens_ == 0) return {ExportResult::NoScreens, {}};
        const bool finished = zip_.Finish() && file_.Finish();
        return {finished ? ExportResult::Written : ExportResult::NotWritten, {}};
    }

 private:
    ExportResult AddSet(const LogoSet& set) {
        const std::size_t count = set.IsSingle() ? 1 : kScreenFileNames.size();
        for (std::size_t i = 0; i < count; ++i) {
            const ExportResult result = AddScreen(set, kScreenFileNames[i]);
            if (result != ExportResult::Written) return result;
        }
        return ExportResult::Written;
    }

    /// A screen that the set lacks is passed over.
    ExportResult AddScreen(const LogoSet& set, const std::string& screen) {
        const std::string path = set.Folder() + screen;
        if (!HoldsPicture(path)) return ExportResult::Written;
        const auto content = pictures::FileOnDisk::Open(path);
        if (!content) return ExportResult::NotRead;
        const std::string name = platform::AnsiToUtf8(set.name) + "/" + screen;
        const bool added =
            zip_.Add(name, platform::ModifiedAt(path), pictures::PictureFile(*content));
        if (content->HasFailed()) return ExportResult::NotRead;
        ++screens_;
        return added ? ExportResult::Written : ExportResult::NotWritten;
    }

    const std::string& library_;
    pictures::FileWriter file_;
    archive::ZipWriter zip_;
    int screens_ = 0;
};

}  // namespace

ExportOutcome ExportSets(const std::string& library, const std::vector<std::string>& names,
                         const std::string& path, const Progress& progress) {
    const ReplacingNote note(path);
    return SetsWriter(library, path).Write(names, progress);
}

}  // namespace vistrel::core
