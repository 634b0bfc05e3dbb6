// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Json.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/RecordOrder.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/ViewModels/CalendarPageViewModel.h"
#include "Velvetnook/Application/ViewModels/FilesViewModel.h"
#include "Velvetnook/Application/ViewModels/LinksViewModel.h"
#include "Velvetnook/Shots/Shot.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QUrl>

namespace Velvetnook
{

namespace
{

Shot tool(const char *name, const char *view, std::function<void(ShotData &)> prepare = {},
          std::function<void(App &)> arrange = {})
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Panel"),
            .view = QLatin1String{view},
            .prepare =
                [prepare = std::move(prepare), view](ShotData &data) {
                    std::erase(data.state.enabled, view);
                    data.state.enabled.emplace_back(view);
                    if (prepare) {
                        prepare(data);
                    }
                },
            .arrange =
                [arrange = std::move(arrange)](App &app) {
                    app.panel()->setOpen(true);
                    if (arrange) {
                        arrange(app);
                    }
                }};
}

// Real files, as the views look at them.
QString pathOf(const char *name)
{
    static const QTemporaryDir kFolder;
    return kFolder.filePath(QString::fromUtf8(name));
}

std::string fileOf(const char *name, qint64 size)
{
    QFile file{pathOf(name)};
    if (file.open(QIODevice::WriteOnly)) {
        file.resize(size);
    }
    return file.fileName().toStdString();
}

std::string pictureOf(const char *name)
{
    QImage image{944, 528, QImage::Format_RGB32};
    image.fill(QColor{"#6E8791"});
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor{"#E7D7AE"});
    painter.drawEllipse(QPointF{688, 160}, 64, 64);
    painter.setBrush(QColor{"#3E5A55"});
    painter.drawPolygon(QPolygonF{
        {0, 400}, {240, 224}, {416, 368}, {560, 272}, {944, 496}, {944, 528}, {0, 528}});
    painter.end();
    image.save(pathOf(name));
    return pathOf(name).toStdString();
}

template <class Payload>
void add(ShotData &data, const char *kind, const char *title, const Payload &payload)
{
    const auto place = static_cast<std::int64_t>(data.records.size());
    KestCore::LocalRecord record{.id = "shot-" + std::to_string(place),
                                 .kind = kind,
                                 .title = title,
                                 .body = Base::json::encode(payload).value_or(""),
                                 .updated = Base::milliseconds1970(kShotTime) - 60'000,
                                 .extra = {}};
    KestCore::setPosition(record, place);
    data.records.push_back(std::move(record));
}

void shelve(ShotData &data, const char *title, std::string path)
{
    add(data, "shelf", title, KestCore::ShelfItem{.path = std::move(path)});
}

void fillShelf(ShotData &data)
{
    shelve(data, "invoice-october.pdf", fileOf("invoice-october.pdf", 214'000));
    shelve(data, "harbour.jpg", pictureOf("harbour.jpg"));
    shelve(data, "plan-v3.odt", fileOf("plan-v3.odt", 48'000));
    shelve(data, "notes.tar.gz", fileOf("notes.tar.gz", 1'200'000));
}

void fillMixedShelf(ShotData &data)
{
    fillShelf(data);
    shelve(data, "a name that no card could ever show on its line.xlsx",
           fileOf("a name that no card could ever show on its line.xlsx", 12));
    shelve(data, "letter.txt", "/nowhere/letter.txt");
    add(data, "shelf", "Meet at the north gate",
        KestCore::ShelfItem{.text = "Meet at the north gate\nat ten. Bring the small bag and "
                                    "the two books that I left with you."});
    add(data, "shelf", "https://example.org/a",
        KestCore::ShelfItem{.text = "https://example.org/a"});
    add(data, "shelf", "قائمة السوق",
        KestCore::ShelfItem{.text = "قائمة السوق\nتمر، زيت، عدس"});
}

void fillLinks(ShotData &data)
{
    add(data, "link", "Morning remembrance",
        KestCore::SavedLink{.url = "https://example.org/morning"});
    add(data, "link", "Before travel",
        KestCore::SavedLink{.url = "https://example.com/travel"});
    add(data, "link", "After the prayer",
        KestCore::SavedLink{.url = "https://example.net/after"});
}

// The list of the desktop's programs stands where this says.
void writeRecentFiles(const QByteArray &bookmarks)
{
    qputenv("XDG_DATA_HOME", pathOf("data").toUtf8());
    QDir{}.mkpath(pathOf("data"));
    QFile list{pathOf("data/recently-used.xbel")};
    if (list.open(QIODevice::WriteOnly)) {
        list.write("<xbel version=\"1.0\">" + bookmarks + "</xbel>");
    }
}

void forgetFiles(ShotData & /*data*/) { writeRecentFiles({}); }

void fillFiles(ShotData &data)
{
    fillShelf(data);
    data.records.clear();
    QByteArray bookmarks;
    int hour = 12;
    for (const char *name :
         {"harbour.jpg", "plan-v3.odt", "invoice-october.pdf", "notes.tar.gz"}) {
        bookmarks += "<bookmark href=\"" + QUrl::fromLocalFile(pathOf(name)).toEncoded() +
                     "\" visited=\"2025-11-14T" +
                     QByteArray::number(hour--).rightJustified(2, '0') + ":41:00Z\"/>";
    }
    writeRecentFiles(bookmarks);
    add(data, "file", "plan-v3.odt",
        KestCore::FileItem{.path = pathOf("plan-v3.odt").toStdString(), .pinned = true});
    add(data, "file", "data",
        KestCore::FileItem{.path = pathOf("data").toStdString(), .pinned = true});
    add(data, "file", "letter.txt",
        KestCore::FileItem{.path = "/nowhere/letter.txt", .pinned = true});
}

QByteArray eventText(const char *start, const char *end, const char *title, const char *place)
{
    static int count = 0;
    return QByteArray{"BEGIN:VEVENT\r\nUID:shot-"} + QByteArray::number(++count) +
           "\r\nDTSTART:20251114T" + start + "\r\nDTEND:20251114T" + end +
           "\r\nSUMMARY:" + title + "\r\nLOCATION:" + place + "\r\nEND:VEVENT\r\n";
}

std::string calendarOf(const char *name, const QByteArray &events)
{
    QFile file{pathOf(name)};
    if (file.open(QIODevice::WriteOnly)) {
        file.write("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + events + "END:VCALENDAR\r\n");
    }
    return file.fileName().toStdString();
}

void fillCalendar(ShotData &data)
{
    data.state.settings["calendar.sources"] =
        calendarOf("home.ics", eventText("121500", "131500", "Jumuʿah", "Central Mosque") +
                                   eventText("183000", "200000", "Dinner at Yusuf’s", "")) +
        "\n" +
        calendarOf("work.ics", eventText("100000", "110000", "Design review", "Room 4") +
                                   eventText("150000", "153000", "Call with Amina", ""));
}

void breakCalendar(ShotData &data)
{
    fillCalendar(data);
    data.state.settings["calendar.sources"] += "\n" + fileOf("broken.ics", 40);
}

} // namespace

std::vector<Shot> shelfShots()
{
    return {
        tool("shelf", "shelf", fillShelf),
        tool("shelf-mixed", "shelf", fillMixedShelf),
        tool("shelf-empty", "shelf"),
        tool("links", "links", fillLinks),
        tool("links-empty", "links"),
        tool("files", "files", fillFiles),
        tool("files-pinned", "files", fillFiles,
             [](App &app) { app.files()->setSection(QStringLiteral("pinned")); }),
        tool("files-empty", "files", forgetFiles),
        tool("calendar", "calendar", fillCalendar),
        tool("calendar-none", "calendar"),
        tool("calendar-broken", "calendar", breakCalendar),
        tool("calendar-six-weeks", "calendar", fillCalendar,
             [](App &app) { app.calendar()->moveMonths(4); }),
    };
}

} // namespace Velvetnook
