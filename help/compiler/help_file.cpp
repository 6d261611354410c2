// Puts the internal files together under their directory.
#include "help/compiler/help_file.h"

#include "help/compiler/b_plus_tree.h"
#include "help/compiler/bytes.h"
#include "help/compiler/fonts.h"
#include "help/compiler/indexes.h"
#include "help/compiler/source_checks.h"
#include "help/compiler/source_parser.h"
#include "help/compiler/system_file.h"
#include "help/compiler/topic_text.h"

namespace vistrel::help {
namespace {

constexpr std::uint32_t kFileHeader = 9;
constexpr std::uint32_t kHelpHeader = 16;

class HelpFileWriter {
 public:
    void Add(const std::string& name, const std::string& content) {
        std::string offset;
        PutU32(offset, kHelpHeader + static_cast<std::uint32_t>(files_.size()));
        std::string key;
        PutText(key, name);
        directory_.emplace(key, offset);
        PutFile(content, 0);
    }

    std::string Finish() {
        const std::uint32_t directoryStart =
            kHelpHeader + static_cast<std::uint32_t>(files_.size());
        std::vector<TreeEntry> entries;
        for (const auto& [name, offset] : directory_) entries.push_back({name, offset});
        PutFile(BuildTree({0x0402, 1024, "z4"}, entries).bytes, 4);
        std::string file;
        PutU32(file, 0x00035F3F);
        PutU32(file, directoryStart);
        PutU32(file, kNowhere);  // no free block
        PutU32(file, kHelpHeader + static_cast<std::uint32_t>(files_.size()));
        return file + files_;
    }

 private:
    void PutFile(const std::string& content, unsigned flags) {
        const auto size = static_cast<std::uint32_t>(content.size());
        PutU32(files_, size + kFileHeader);
        PutU32(files_, size);
        PutU8(files_, flags);
        files_ += content;
    }

    std::string files_;
    std::map<std::string, std::string> directory_;  // sorted bytewise
};

}  // namespace

std::string CompileHelp(const std::vector<SourceFile>& files, const PictureLoader& loadPicture,
                        SourceErrors& errors) {
    const HelpSource help = ParseSource(files, errors);
    CheckSource(help, errors);
    if (!errors.empty()) return "";
    Pictures pictures(loadPicture, errors);
    const TopicText text = MakeTopicText(help, pictures, errors);
    const KeywordFiles keywords = MakeKeywordFiles(help, text.topicOffsets);

    // The viewer copies a whole block even of a shorter last one: |TOPIC must not come last.
    HelpFileWriter writer;
    writer.Add("|SYSTEM", SystemFile(help, text.topicOffsets.front()));
    writer.Add("|TOPIC", text.file);
    writer.Add("|FONT", FontFile());
    writer.Add("|CTXOMAP", NumberFile(help, text.topicOffsets));
    writer.Add("|KWDATA", keywords.data);
    writer.Add("|KWMAP", keywords.map);
    writer.Add("|KWBTREE", keywords.tree);
    writer.Add("|TTLBTREE", TitleFile(help, text.topicOffsets));
    writer.Add("|CONTEXT", ContextFile(help, text.topicOffsets));
    for (std::size_t i = 0; i < pictures.Files().size(); ++i)
        writer.Add("|bm" + std::to_string(i), pictures.Files()[i]);
    return writer.Finish();
}

}  // namespace vistrel::help
