// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "KestCore/Store/StoreLocation.h"
#include "KestCore/Tools/RecordBin.h"
#include "KestCore/Tools/Shelf.h"
#include "KestCore/Tools/Texts.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ListChange.h"
#include "Velvetnook/Application/ViewModels/ShelfViewModel.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QSaveFile>
#include <QUuid>

#include <algorithm>
#include <filesystem>

// What the view model of the shelf does to what stands there.
namespace Velvetnook
{

namespace
{

using KestCore::LocalRecord;
using KestCore::RecordList;

constexpr qsizetype kLargestPicture = 40'000'000; // bytes

// Of the pictures that came without a file.
QString pictureFolder()
{
    return QString::fromStdString((KestCore::dataDirectory() / "shelf").string());
}

std::string kindOf() { return KestCore::kShelfKind; }

bool isPlace(const QUrl &url) { return url.scheme() == u"http" || url.scheme() == u"https"; }

Base::Result<QString> savedPicture(const QByteArray &picture)
{
    const QString folder = pictureFolder();
    KEST_CHECK(Base::makePrivateDirectory(folder.toStdString()));
    QString file = QStringLiteral("%1/picture-%2.png")
                       .arg(folder, QUuid::createUuid().toString(QUuid::Id128));
    QSaveFile saved{file};
    if (!saved.open(QIODevice::WriteOnly) || saved.write(picture) != picture.size() ||
        !saved.commit()) {
        return std::unexpected(KestError::unavailable(saved.errorString().toStdString()));
    }
    return file;
}

} // namespace

bool ShelfViewModel::take(const QList<QUrl> &urls, const QString &text,
                          const QByteArray &picture)
{
    QList<QUrl> files;
    QStringList addresses;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) {
            files.push_back(url);
        } else if (isPlace(url)) {
            addresses.push_back(QString::fromLatin1(url.toEncoded()));
        }
    }
    if (!files.isEmpty()) {
        shelveFiles(files);
    } else if (!picture.isEmpty()) {
        shelvePicture(picture);
    } else if (!addresses.isEmpty()) {
        shelveTexts(addresses);
    } else if (KestCore::isVisible(text.toStdString())) {
        shelveTexts({text});
    } else {
        return false;
    }
    return true;
}

bool ShelfViewModel::paste()
{
    const QMimeData *held = QGuiApplication::clipboard()->mimeData();
    if (held == nullptr) {
        return false;
    }
    return take(held->urls(), held->text(), held->data(QStringLiteral("image/png")));
}

void ShelfViewModel::shelveFiles(const QList<QUrl> &urls)
{
    std::vector<std::filesystem::path> paths;
    for (const QUrl &url : urls) {
        paths.emplace_back(url.toLocalFile().toStdString());
    }
    changeList(m_model, this, kindOf(), [paths](RecordList &list) -> Result<void> {
        KEST_TRY([[maybe_unused]] const auto records, KestCore::shelve(list, paths));
        return {};
    });
}

void ShelfViewModel::shelveTexts(const QStringList &texts)
{
    std::vector<LocalRecord> records;
    for (const QString &text : texts) {
        auto made = KestCore::makeShelfText(text.toStdString());
        if (!made) {
            m_model.say(engineText(made.error().message));
            return;
        }
        records.push_back(*std::move(made));
    }
    changeList(m_model, this, kindOf(), [records](RecordList &list) -> Result<void> {
        KEST_TRY([[maybe_unused]] const auto added,
                 list.addAll(records, KestCore::ListEnd::back));
        return {};
    });
}

void ShelfViewModel::shelvePicture(const QByteArray &picture)
{
    if (picture.size() > kLargestPicture) {
        m_model.say(tr("The picture is too large for the shelf."));
        return;
    }
    m_side.ask(
        this, [picture](std::monostate &) { return savedPicture(picture); },
        [this](Base::Result<QString> file) {
            if (file) {
                shelveFiles({QUrl::fromLocalFile(*file)});
            } else {
                m_model.say(engineText(file.error().message));
            }
        });
}

// Takes the pictures away that nothing on the shelf names, and that cannot come back to it.
void ShelfViewModel::sweep()
{
    if (std::exchange(m_hasSwept, true)) {
        return;
    }
    QStringList named;
    for (const std::string_view kind :
         {std::string_view{KestCore::kShelfKind}, KestCore::kTrashKind}) {
        for (const LocalRecord &record : m_model.recordsOfKind(kind)) {
            named.push_back(QString::fromStdString(record.body));
        }
    }
    m_side.tell(this, [named](std::monostate &) {
        QDir folder{pictureFolder()};
        for (const QString &file :
             folder.entryList({QStringLiteral("picture-*.png")}, QDir::Files)) {
            const bool isNamed = std::ranges::any_of(
                named, [&file](const QString &body) { return body.contains(file); });
            if (!isNamed) {
                folder.remove(file);
            }
        }
    });
}

void ShelfViewModel::open(const QString &id)
{
    const ShelfRow *row = m_list.find(id);
    if (row == nullptr) {
        return;
    }
    if (row->family == u"link") {
        emit openWanted(QUrl{textOf(id)});
    } else if (row->family == u"words") {
        copy(id);
    } else if (row->path.isEmpty()) {
        m_model.say(tr("%1 is not where it was.").arg(row->title));
    } else {
        emit openWanted(QUrl::fromLocalFile(row->path));
    }
}

void ShelfViewModel::reveal(const QString &id)
{
    const ShelfRow *row = m_list.find(id);
    if (row != nullptr && !row->path.isEmpty()) {
        emit revealWanted(row->path);
    }
}

QString ShelfViewModel::textOf(const QString &id) const
{
    for (const LocalRecord &record : m_model.recordsOfKind(KestCore::kShelfKind)) {
        if (record.id == id.toStdString()) {
            return QString::fromStdString(
                KestCore::payloadOf<KestCore::ShelfItem>(record).text.value_or(""));
        }
    }
    return {};
}

void ShelfViewModel::copy(const QString &id)
{
    const ShelfRow *row = m_list.find(id);
    if (row == nullptr || row->family == u"missing") {
        return;
    }
    auto *held = new QMimeData; // the clipboard's own from here on
    if (row->path.isEmpty()) {
        held->setText(textOf(id));
    } else {
        held->setUrls({QUrl::fromLocalFile(row->path)});
        held->setText(row->path);
    }
    QGuiApplication::clipboard()->setMimeData(held);
    m_model.say(tr("Copied"));
}

void ShelfViewModel::rename(const QString &id, const QString &title)
{
    const ShelfRow *row = m_list.find(id);
    if (row == nullptr || row->title == title) {
        return;
    }
    const auto change = [id = id.toStdString()](const QString &name) -> ListChange {
        return [id, name = name.toStdString()](RecordList &list) -> Result<void> {
            KEST_TRY(const std::string checked, KestCore::checkedTitle(name));
            if (checked.empty()) {
                return std::unexpected(KestError::invalidData("A name has to show something"));
            }
            KEST_TRY([[maybe_unused]] const auto record,
                     list.edit(id, [&checked](LocalRecord &edited) -> Result<void> {
                         edited.title = checked;
                         return {};
                     }));
            return {};
        };
    };
    const QString message =
        row->path.isEmpty() ? tr("Renamed") : tr("Renamed here; the file keeps its name");
    changeListThen(m_model, this, kindOf(), change(title),
                   [this, id, message, before = row->title] {
                       emit changed(message, [this, id, before] { rename(id, before); });
                   });
}

void ShelfViewModel::remove(const QString &id)
{
    changeListThen(
        m_model, this, kindOf(),
        [id = id.toStdString()](RecordList &list) -> Result<void> {
            KEST_TRY([[maybe_unused]] const auto record, list.remove(id));
            return {};
        },
        [this] { emit changed(tr("Taken off the shelf"), [this] { restore(); }); });
}

void ShelfViewModel::clear()
{
    changeListThen(
        m_model, this, kindOf(),
        [](RecordList &list) -> Result<void> {
            KEST_TRY([[maybe_unused]] const auto records, list.removeAll());
            return {};
        },
        [this] { emit changed(tr("The shelf is empty"), [this] { restore(); }); });
}

void ShelfViewModel::restore()
{
    changeList(m_model, this, kindOf(), [](RecordList &list) -> Result<void> {
        KEST_TRY([[maybe_unused]] const auto records, list.restore());
        return {};
    });
}

} // namespace Velvetnook
