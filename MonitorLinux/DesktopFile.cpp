// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/DesktopFile.h"

#include "Base/Text.h"
#include "MonitorLinux/ProcParsers.h"
#include "MonitorLinux/TextCursor.h"

#include <algorithm>
#include <array>

namespace MonitorLinux
{

namespace fs = std::filesystem;

using Base::KestError;

namespace
{

constexpr std::string_view kEnding = ".desktop";
constexpr std::size_t kLongestLine = 8192;
constexpr std::size_t kMostFiles = 4096; // below one folder
constexpr std::string_view kFilePrefix = "file://";

std::unexpected<KestError> refused(const char *why)
{
    return std::unexpected(KestError::invalidData(why));
}

constexpr const char *kBadCommand = "The application's command line is not valid";

struct Keys {
    std::string_view type{};
    std::string_view exec{};
    std::string_view icon{};
    std::string_view folder{};
    std::string_view name{};
    int nameRank = -1; // 0 of no language, 1 of the language, 2 of its country's kind
    bool isForTerminal = false;
    bool isHidden = false;
};

void take(Keys &keys, std::string_view key, std::string_view value, std::string_view language)
{
    const std::array<std::pair<std::string_view, std::string_view *>, 4> texts{
        {{"Type", &keys.type},
         {"Exec", &keys.exec},
         {"Icon", &keys.icon},
         {"Path", &keys.folder}}};
    for (const auto &[name, text] : texts) {
        if (key == name) {
            *text = value;
            return;
        }
    }
    if (key == "Terminal") {
        keys.isForTerminal = value == "true";
    } else if ((key == "Hidden" || key == "NoDisplay") && value == "true") {
        keys.isHidden = true;
    } else if (const int rank = rankOfName(key, language); rank > keys.nameRank) {
        keys.nameRank = rank;
        keys.name = value;
    }
}

// The escapes that every text of such a file may have.
std::string unescaped(std::string_view text)
{
    constexpr std::array<std::pair<char, char>, 5> kEscapes{
        {{'s', ' '}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'\\', '\\'}}};
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto *const escape =
            text[at] != '\\' || at + 1 == text.size()
                ? kEscapes.end()
                : std::ranges::find(kEscapes, text[at + 1], &std::pair<char, char>::first);
        if (escape == kEscapes.end()) {
            plain += text[at];
        } else {
            plain += escape->second;
            ++at;
        }
    }
    return plain;
}

bool hasControls(std::string_view text)
{
    return std::ranges::any_of(
        text, [](char letter) { return static_cast<unsigned char>(letter) < ' '; });
}

// A word as it stands in the line: what was quoted is no field code.
struct Word {
    std::string text{};
    bool isQuoted = false;
};

// Signs that mean something to a shell must stand in quotes.
bool needsQuotes(char letter)
{
    return std::string_view{"\"'\\><~|&;$*?#()`"}.contains(letter);
}

// From behind the quote to the one that ends it. False where none does, and for a backslash
// before what it does not belong to, which is not said to mean anything.
bool readQuoted(std::string_view line, std::size_t &at, Word &word)
{
    for (; at < line.size() && line[at] != '"'; ++at) {
        if (line[at] == '`' || line[at] == '$') {
            return false; // a shell would put something in its place
        }
        if (line[at] == '\\') {
            ++at;
            if (at == line.size() || !std::string_view{"\"`$\\"}.contains(line[at])) {
                return false;
            }
        }
        word.text += line[at];
    }
    return at++ < line.size();
}

Result<std::vector<Word>> wordsOf(std::string_view line)
{
    std::vector<Word> words;
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && line[at] == ' ') {
            ++at;
        }
        if (at == line.size()) {
            return words;
        }
        Word word;
        if (line[at] == '"') {
            word.isQuoted = true;
            ++at;
            if (!readQuoted(line, at, word) || (at < line.size() && line[at] != ' ')) {
                return refused(kBadCommand); // a word is quoted whole or not at all
            }
        }
        for (; !word.isQuoted && at < line.size() && line[at] != ' '; ++at) {
            if (needsQuotes(line[at])) {
                return refused(kBadCommand);
            }
            word.text += line[at];
        }
        words.push_back(std::move(word));
    }
}

int hexDigit(char letter)
{
    const std::string_view digits = "0123456789abcdef";
    const std::string lower = Base::lowerAscii({&letter, 1});
    const std::size_t found = digits.find(lower.front());
    return found == std::string_view::npos ? -1 : static_cast<int>(found);
}

// The path of a file's address; none for another kind of address.
std::optional<std::string> pathOf(std::string_view address)
{
    if (!address.starts_with(kFilePrefix)) {
        return std::nullopt;
    }
    address.remove_prefix(kFilePrefix.size());
    std::string path;
    for (std::size_t at = 0; at < address.size(); ++at) {
        if (address[at] != '%') {
            path += address[at];
            continue;
        }
        const int high = at + 2 < address.size() ? hexDigit(address[at + 1]) : -1;
        const int low = at + 2 < address.size() ? hexDigit(address[at + 2]) : -1;
        if (high < 0 || low < 0 || high + low == 0) {
            return std::nullopt;
        }
        path += static_cast<char>(high * 16 + low);
        at += 2;
    }
    return path.starts_with('/') ? std::optional{path} : std::nullopt;
}

// Puts the words of one command together.
class Filler
{
public:
    Filler(const LaunchEntry &entry, const std::string &file,
           std::span<const std::string> addresses)
        : m_entry(entry), m_file(file), m_addresses(addresses)
    {
    }

    Result<void> add(const Word &word)
    {
        if (word.isQuoted || !word.text.contains('%')) {
            m_words.push_back(word.text);
            return {};
        }
        return word.text.size() == 2 && word.text.front() == '%' ? addCode(word.text[1])
                                                                 : addMixed(word.text);
    }
    std::vector<std::string> words() { return std::move(m_words); }

private:
    // A code that is a word of its own can become any number of words.
    Result<void> addCode(char code)
    {
        switch (code) {
        case 'f':
        case 'F':
        case 'u':
        case 'U':
            addFiles(code == 'f' || code == 'u', code == 'f' || code == 'F');
            return {};
        case 'i':
            if (!m_entry.icon.empty()) {
                m_words.insert(m_words.end(), {"--icon", m_entry.icon});
            }
            return {};
        default:
            return addMixed(std::string{'%', code});
        }
    }

    void addFiles(bool isOne, bool asPaths)
    {
        for (const std::string &address : m_addresses) {
            const auto path = pathOf(address);
            if (!asPaths || path) {
                m_words.push_back(asPaths ? *path : address);
            }
            if (isOne) {
                return;
            }
        }
    }

    // A code inside of a word.
    Result<void> addMixed(std::string_view text)
    {
        constexpr std::string_view kNoLongerUsed = "dDnNvm";
        std::string word;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] != '%') {
                word += text[at];
                continue;
            }
            const char code = ++at < text.size() ? text[at] : '\0';
            if (code == '%') {
                word += '%';
            } else if (code == 'c') {
                word += m_entry.name;
            } else if (code == 'k') {
                word += m_file;
            } else if (code == '\0' || !kNoLongerUsed.contains(code)) {
                return refused(kBadCommand);
            }
        }
        if (!word.empty()) {
            m_words.push_back(std::move(word));
        }
        return {};
    }

    const LaunchEntry &m_entry;
    const std::string &m_file;
    std::span<const std::string> m_addresses;
    std::vector<std::string> m_words;
};

} // namespace

int rankOfName(std::string_view key, std::string_view language)
{
    if (key == "Name") {
        return 0;
    }
    if (!key.starts_with("Name[") || !key.ends_with(']') || language.empty()) {
        return -1;
    }
    const std::string_view of = key.substr(5, key.size() - 6);
    if (of == language) {
        return 2;
    }
    return of == language.substr(0, language.find('_')) ? 1 : -1;
}

std::optional<LaunchEntry> parseLaunchEntry(std::string_view text, std::string_view language)
{
    Keys keys;
    bool isInEntry = false;
    TextCursor lines{text};
    while (!lines.atEnd()) {
        const std::string_view line = lines.line();
        const std::size_t equals = line.find('=');
        if (line.starts_with('[')) {
            isInEntry = Base::trimmed(line) == "[Desktop Entry]";
        } else if (isInEntry && equals != std::string_view::npos && !line.starts_with('#') &&
                   line.size() <= kLongestLine) {
            take(keys, Base::trimmed(line.substr(0, equals)),
                 Base::trimmed(line.substr(equals + 1)), language);
        }
    }
    LaunchEntry entry{.name = asUtf8(unescaped(keys.name)),
                      .icon = asUtf8(unescaped(keys.icon)),
                      .exec = unescaped(keys.exec),
                      .folder = unescaped(keys.folder),
                      .isForTerminal = keys.isForTerminal};
    const bool isApplication = keys.type == "Application" && !keys.isHidden;
    if (!isApplication || entry.name.empty() || entry.exec.empty() || hasControls(entry.name) ||
        hasControls(entry.icon) || hasControls(entry.exec) || hasControls(entry.folder)) {
        return std::nullopt;
    }
    return entry;
}

Result<std::vector<std::string>> commandWords(const LaunchEntry &entry, const std::string &file,
                                              std::span<const std::string> addresses)
{
    KEST_TRY(const std::vector<Word> words, wordsOf(entry.exec));
    // The program itself is no field code, and neither an assignment nor an option.
    const bool hasProgram = !words.empty() && !words.front().text.empty() &&
                            !words.front().text.contains('=') &&
                            !words.front().text.starts_with('-');
    if (!hasProgram || (!words.front().isQuoted && words.front().text.contains('%'))) {
        return refused(kBadCommand);
    }
    Filler filler{entry, file, addresses};
    for (const Word &word : words) {
        KEST_CHECK(filler.add(word));
    }
    return filler.words();
}

std::vector<DesktopFile> desktopFilesIn(const fs::path &folder)
{
    std::vector<fs::path> paths;
    std::error_code error;
    constexpr auto kOptions = fs::directory_options::skip_permission_denied |
                              fs::directory_options::follow_directory_symlink;
    fs::recursive_directory_iterator entries{folder, kOptions, error};
    for (; !error && entries != fs::recursive_directory_iterator{} && paths.size() < kMostFiles;
         entries.increment(error)) {
        if (entries.depth() > 3) { // a link may lead back
            entries.disable_recursion_pending();
        }
        if (entries->path().native().ends_with(kEnding)) {
            paths.push_back(entries->path());
        }
    }
    std::ranges::sort(paths);
    std::vector<DesktopFile> files;
    for (fs::path &path : paths) {
        std::string id = path.lexically_relative(folder).string();
        id.resize(id.size() - kEnding.size());
        std::ranges::replace(id, '/', '-');
        files.push_back({.id = asUtf8(id), .path = std::move(path)});
    }
    return files;
}

std::optional<fs::path> findDesktopFile(std::string_view id, std::span<const fs::path> folders)
{
    if (id.empty() || id.contains('/') || hasControls(id)) {
        return std::nullopt;
    }
    for (const fs::path &folder : folders) {
        std::error_code error;
        fs::path direct = folder / (std::string{id} + std::string{kEnding});
        if (fs::is_regular_file(direct, error)) {
            return direct;
        }
        // A dash may stand for a slash.
        const auto files =
            id.contains('-') ? desktopFilesIn(folder) : std::vector<DesktopFile>{};
        if (const auto found = std::ranges::find(files, id, &DesktopFile::id);
            found != files.end()) {
            return found->path;
        }
    }
    return std::nullopt;
}

} // namespace MonitorLinux
