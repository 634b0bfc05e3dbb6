// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/ApplicationLauncher.h"

#include "Base/File.h"
#include "Base/Text.h"
#include "MonitorLinux/DesktopFile.h"

#include <QCoreApplication>
#include <QPointer>
#include <QProcess>
#include <QUrl>

#include <algorithm>
#include <set>
#include <utility>

namespace Velvetnook
{

namespace fs = std::filesystem;

using Base::KestError;
using Base::Result;
using KestCore::DockItem;
using KestCore::DockItemKind;
using MonitorLinux::AppPlaces;
using MonitorLinux::LaunchEntry;

namespace
{

constexpr const char *kNotInstalled = "This application is not installed any more";
constexpr const char *kNotStarted = "It could not be started";
constexpr const char *kNoTerminal = "No terminal was found to start it in";
constexpr const char *kNoFile = "This file is not there any more";
constexpr const char *kNoOpener = "Nothing was found to open it with";

std::optional<LaunchEntry> entryAt(const fs::path &file, const AppPlaces &places)
{
    const auto text = Base::readFile(file, MonitorLinux::kLongestDesktopFile);
    if (!text || text->size() > MonitorLinux::kLongestDesktopFile) {
        return std::nullopt;
    }
    return MonitorLinux::parseLaunchEntry(*text, places.language);
}

// The file that a word names, as a shell would find it; empty where there is none.
std::string programAt(const std::string &word, const AppPlaces &places)
{
    const auto isProgram = [](const fs::path &file) {
        std::error_code error;
        return fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0;
    };
    if (word.contains('/')) {
        return word.starts_with('/') && isProgram(word) ? word : std::string{};
    }
    const auto found = std::ranges::find_if(
        places.programs, [&](const fs::path &folder) { return isProgram(folder / word); });
    return found == places.programs.end() ? std::string{} : (*found / word).string();
}

Result<void> start(std::vector<std::string> words, const std::string &folder,
                   const AppPlaces &places, const char *ifMissing)
{
    const std::string program = programAt(words.front(), places);
    if (program.empty()) {
        return std::unexpected(KestError::unavailable(ifMissing));
    }
    QStringList arguments;
    for (const std::string &word : std::span{words}.subspan(1)) {
        arguments.push_back(
            QString::fromLocal8Bit(word.data(), static_cast<qsizetype>(word.size())));
    }
    QProcess process;
    process.setProgram(QString::fromStdString(program));
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    std::error_code error;
    if (!folder.empty() && fs::is_directory(folder, error)) {
        process.setWorkingDirectory(QString::fromStdString(folder));
    }
    if (!process.startDetached()) {
        return std::unexpected(KestError::unavailable(kNotStarted));
    }
    return {};
}

Result<void> startApplication(const std::string &id, const std::vector<std::string> &addresses,
                              const AppPlaces &places)
{
    const auto file = MonitorLinux::findDesktopFile(id, places.applications);
    const auto entry = file ? entryAt(*file, places) : std::nullopt;
    if (!file || !entry) {
        return std::unexpected(KestError::unavailable(kNotInstalled));
    }
    KEST_TRY(std::vector<std::string> words,
             MonitorLinux::commandWords(*entry, file->string(), addresses));
    if (!entry->isForTerminal) {
        return start(std::move(words), entry->folder, places, kNotInstalled);
    }
    if (programAt(words.front(), places).empty()) {
        return std::unexpected(KestError::unavailable(kNotInstalled));
    }
    words.insert(words.begin(), {"x-terminal-emulator", "-e"});
    return start(std::move(words), entry->folder, places, kNoTerminal);
}

Result<void> openItem(const DockItem &item, const std::vector<std::string> &addresses,
                      const AppPlaces &places)
{
    if (item.kind == DockItemKind::app) {
        return startApplication(item.target, addresses, places);
    }
    std::string address = item.target;
    if (item.kind == DockItemKind::file) {
        std::error_code error;
        if (!fs::exists(item.target, error)) {
            return std::unexpected(KestError::unavailable(kNoFile));
        }
        address = QUrl::fromLocalFile(QString::fromStdString(item.target))
                      .toString(QUrl::FullyEncoded)
                      .toStdString();
    } else if (!address.starts_with("http://") && !address.starts_with("https://")) {
        // The document may have come from elsewhere, and other addresses run things.
        return std::unexpected(KestError::invalidData("This is no web address"));
    }
    return start({"xdg-open", address}, {}, places, kNoOpener);
}

std::vector<DockApplication> applicationsAt(const AppPlaces &places)
{
    std::vector<DockApplication> found;
    std::set<std::string> seen;
    for (const fs::path &folder : places.applications) {
        for (const MonitorLinux::DesktopFile &file : MonitorLinux::desktopFilesIn(folder)) {
            // One that hides itself hides those of its id in later folders too.
            if (!seen.insert(file.id).second) {
                continue;
            }
            if (const auto entry = entryAt(file.path, places)) {
                found.push_back({.id = QString::fromStdString(file.id),
                                 .name = QString::fromStdString(entry->name),
                                 .iconName = QString::fromStdString(entry->icon)});
            }
        }
    }
    return found;
}

std::optional<DockApplication> applicationOf(const std::string &path, const AppPlaces &places)
{
    for (const fs::path &folder : places.applications) {
        for (const MonitorLinux::DesktopFile &file : MonitorLinux::desktopFilesIn(folder)) {
            std::error_code error;
            if (fs::equivalent(file.path, path, error)) {
                const auto entry = entryAt(file.path, places);
                return entry ? std::optional{DockApplication{
                                   .id = QString::fromStdString(file.id),
                                   .name = QString::fromStdString(entry->name),
                                   .iconName = QString::fromStdString(entry->icon)}}
                             : std::nullopt;
            }
        }
    }
    return std::nullopt;
}

std::vector<DockFinding> findings(const std::vector<DockItem> &items, const AppPlaces &places)
{
    std::vector<DockFinding> found;
    for (const DockItem &item : items) {
        if (item.kind == DockItemKind::app) {
            const auto file = MonitorLinux::findDesktopFile(item.target, places.applications);
            const auto entry = file ? entryAt(*file, places) : std::nullopt;
            found.push_back(
                {.isThere = entry.has_value(),
                 .iconName = entry ? QString::fromStdString(entry->icon) : QString{}});
        } else {
            std::error_code error;
            found.push_back({.isThere = fs::exists(item.target, error), .iconName = {}});
        }
    }
    return found;
}

} // namespace

ApplicationLauncher::ApplicationLauncher(AppPlaces places, QObject *parent)
    : QObject{parent}, m_places{std::move(places)}
{
}

ApplicationLauncher::~ApplicationLauncher() = default;

template <class Op, class Answer>
void ApplicationLauncher::ask(Op op, Answer answer)
{
    if (!m_reader) {
        m_reader = std::make_unique<Base::Serial<Places>>(m_places);
    }
    const auto onMainThread = [self = QPointer{this}](auto call) {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, call = std::move(call)]() mutable {
                if (self != nullptr) {
                    call();
                }
            },
            Qt::QueuedConnection);
    };
    m_reader->ask(std::move(op), onMainThread, std::move(answer));
}

DockDesktop ApplicationLauncher::desktop()
{
    return {.listApplications =
                [this](auto answer) {
                    ask([](Places &places) { return applicationsAt(places); },
                        std::move(answer));
                },
            .findApplication =
                [this](const QString &path, auto answer) {
                    ask([file = path.toStdString()](
                            Places &places) { return applicationOf(file, places); },
                        std::move(answer));
                },
            .inspect =
                [this](std::vector<DockItem> items, auto answer) {
                    ask([items = std::move(items)](
                            Places &places) { return findings(items, places); },
                        std::move(answer));
                },
            .open =
                [this](const DockItem &item, const QStringList &addresses, auto answer) {
                    std::vector<std::string> texts;
                    for (const QString &address : addresses) {
                        texts.push_back(address.toStdString());
                    }
                    ask([item, texts = std::move(texts)](
                            Places &places) { return openItem(item, texts, places); },
                        std::move(answer));
                }};
}

} // namespace Velvetnook
