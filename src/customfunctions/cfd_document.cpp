#include "customfunctions/cfd_document.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "customfunctions/engine/function_text.h"
#include "customfunctions/windows1252.h"
#include "engine/text_codec.h"
#include "numbers/text_rules.h"

namespace tessarondel {

namespace {

constexpr std::u16string_view Magic = u"%%Tessarondel Custom Function Document - 1.0";
constexpr std::u16string_view NameHeader = u"[Function Name]";
constexpr std::u16string_view ParameterHeader = u"[Parameter List]";
constexpr std::u16string_view ExpressionHeader = u"[Expression List]";
constexpr std::u16string_view DescriptionHeader = u"[Description]";

// No document we write comes near this; a larger file is no function document
// and is passed over, so a stray huge file can't take the memory.
constexpr off_t MaxDocumentBytes = 1 << 20;

// Lines of a document: a line ends at CR or at CR LF; a lone LF stays in it.
class LineReader {
public:
    explicit LineReader(std::u16string text) : text_(std::move(text)) {}
    bool AtEnd() const { return at_ >= text_.size(); }
    std::u16string_view Next() {
        const std::size_t end = std::min(text_.find(u'\r', at_), text_.size());
        const std::u16string_view line = std::u16string_view(text_).substr(at_, end - at_);
        at_ = end + 1;
        if (at_ < text_.size() && text_[at_] == u'\n') ++at_;
        return line;
    }

private:
    std::u16string text_;
    std::size_t at_ = 0;
};

// Reads trimmed lines until `header` or the end; `line` holds the last one read.
void SkipTo(LineReader& lines, std::u16string& line, std::u16string_view header) {
    while (!lines.AtEnd() && line != header) line = TrimBlanks(lines.Next());
}

// The first non-empty line before `header`; later lines of the section are dropped.
std::u16string FirstLineBefore(LineReader& lines, std::u16string& line, std::u16string_view header) {
    std::u16string first;
    while (!lines.AtEnd() && line != header) {
        line = TrimBlanks(lines.Next());
        if (line != header && first.empty()) first = line;
    }
    return first;
}

std::string FoldCase(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
    return name;
}

bool IsDocumentFileName(const std::string& name) {
    return name.size() >= 4 && FoldCase(name.substr(name.size() - 4)) == ".cfd";
}

// The document files of the folder, by name ignoring case. A folder that is
// missing, unlistable or a file lists nothing.
std::vector<std::filesystem::path> ListDocumentFiles(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        std::error_code statusError;
        if (it->is_directory(statusError)) continue;
        if (IsDocumentFileName(it->path().filename().string())) files.push_back(it->path());
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) {
        const std::string left = a.filename().string(), right = b.filename().string();
        const std::string foldedLeft = FoldCase(left), foldedRight = FoldCase(right);
        return foldedLeft != foldedRight ? foldedLeft < foldedRight : left < right;
    });
    return files;
}

enum class FileRead { Ok, Oversized, Failed };

FileRead ReadWholeFile(const std::filesystem::path& file, std::string& bytes) {
    const int fd = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return FileRead::Failed;
    struct stat info {};
    FileRead outcome = FileRead::Ok;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        outcome = FileRead::Failed;
    } else if (info.st_size > MaxDocumentBytes) {
        outcome = FileRead::Oversized;
    } else {
        bytes.assign(static_cast<std::size_t>(info.st_size), '\0');
        std::size_t done = 0;
        while (done < bytes.size() && outcome == FileRead::Ok) {
            const ssize_t got = ::read(fd, bytes.data() + done, bytes.size() - done);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) outcome = FileRead::Failed;
            if (got <= 0) break;
            done += static_cast<std::size_t>(got);
        }
        bytes.resize(done);
    }
    ::close(fd);
    return outcome;
}

// One plain file name component: never a path, never the folder itself or its parent.
bool IsPlainFileName(std::u16string_view name) {
    if (name.empty() || name == u"." || name == u"..") return false;
    return name.find(u'/') == std::u16string_view::npos && name.find(u'\0') == std::u16string_view::npos;
}

bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

mode_t DocumentMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

}  // namespace

std::optional<CustomFunctionDocument> ParseDocument(std::string_view bytes) {
    LineReader lines(DecodeWindows1252(bytes));
    std::u16string line;
    SkipTo(lines, line, Magic);
    SkipTo(lines, line, NameHeader);
    CustomFunctionDocument document;
    document.Name = FirstLineBefore(lines, line, ParameterHeader);
    document.ParameterText = FirstLineBefore(lines, line, ExpressionHeader);
    while (!lines.AtEnd() && line != DescriptionHeader) {
        line = TrimBlanks(lines.Next());
        if (line != DescriptionHeader) document.Expression.append(line).append(u"\r\n");
    }
    while (!lines.AtEnd()) document.Description.append(TrimBlanks(lines.Next())).append(u"\r\n");
    if (TrimBlanks(document.Name).empty() || TrimBlanks(document.Expression).empty()) return std::nullopt;
    return document;
}

std::string FormatDocument(const CustomFunctionDocument& document) {
    std::u16string text;
    for (std::u16string_view item :
         {Magic, NameHeader, TrimBlanks(document.Name), ParameterHeader, TrimBlanks(document.ParameterText),
          ExpressionHeader, TrimBlanks(document.Expression), DescriptionHeader, TrimBlanks(document.Description)}) {
        text.append(item).append(u"\r\n");
    }
    return EncodeWindows1252(text);
}

FolderReadResult ReadFunctionFolder(const std::filesystem::path& folder) {
    FolderReadResult result;
    for (const std::filesystem::path& file : ListDocumentFiles(folder)) {
        std::string bytes;
        const FileRead outcome = ReadWholeFile(file, bytes);
        if (outcome == FileRead::Failed) {
            // Reading stops at once, and nothing read so far is kept.
            result.documents.clear();
            result.failed = true;
            return result;
        }
        if (outcome == FileRead::Oversized) continue;
        if (auto document = ParseDocument(bytes)) result.documents.push_back(std::move(*document));
    }
    return result;
}

FolderReadResult LoadFunctionFolder(EngineState& state, const std::filesystem::path& folder) {
    FolderReadResult result = ReadFunctionFolder(folder);
    if (result.failed && state.ShowMessageBox) {
        state.ShowMessageBox(std::u16string(LoadFailedMessage), std::u16string(DocumentErrorTitle));
    }
    for (const CustomFunctionDocument& document : result.documents) DefineDocument(state, document);
    return result;
}

bool WriteFunctionDocument(const std::filesystem::path& folder, const CustomFunctionDocument& document) {
    const std::u16string_view name = TrimBlanks(document.Name);
    if (!IsPlainFileName(name)) return false;
    const std::filesystem::path target = folder / (ToUtf8(name) + ".cfd");
    // Written beside the target and renamed over it, so a failed save leaves the old document whole.
    std::string temporary = (folder / ".cfd-save-XXXXXX").string();
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0) return false;
    bool ok = ::fchmod(fd, DocumentMode()) == 0 && WriteAll(fd, FormatDocument(document)) && ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    ok = ok && ::rename(temporary.c_str(), target.c_str()) == 0;
    if (!ok) ::unlink(temporary.c_str());
    return ok;
}

bool DeleteFunctionDocument(const std::filesystem::path& folder, std::u16string_view name) {
    if (!IsPlainFileName(name)) return false;
    const std::filesystem::path target = folder / (ToUtf8(name) + ".cfd");
    return ::unlink(target.c_str()) == 0;
}

}  // namespace tessarondel
