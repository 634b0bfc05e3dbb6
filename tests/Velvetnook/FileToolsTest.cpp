// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Shelf.h"
#include "RunningModel.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/FileGlance.h"
#include "Velvetnook/Application/FileWatch.h"
#include "Velvetnook/Application/RecentFiles.h"
#include "Velvetnook/Application/ViewModels/FilesViewModel.h"
#include "Velvetnook/Application/ViewModels/LinksViewModel.h"
#include "Velvetnook/Application/ViewModels/ShelfViewModel.h"
#include "Velvetnook/Notch/NotchDriver.h"
#include "Velvetnook/Shell/PreviewImages.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

// The shelf, the bookmarks and the files: over real files and a real store.
namespace
{

using namespace Velvetnook;
namespace fs = std::filesystem;

void write(const fs::path &path, const std::string &text = "text")
{
    fs::create_directories(path.parent_path());
    std::ofstream{path} << text;
}

QUrl urlOf(const fs::path &path) { return QUrl::fromLocalFile(QString::fromStdString(path)); }

template <class Rows>
QStringList titlesOf(const Rows &rows)
{
    QStringList titles;
    for (const auto &row : rows) {
        titles << row.title;
    }
    return titles;
}

TEST(RecentFilesTest, ReadsWhatTheDesktopKeeps)
{
    struct Case {
        const char *what;
        const char *list;
        QStringList paths;
    };
    const Case kCases[]{
        {"nothing", "", {}},
        {"the last used first, by whatever time is the latest",
         R"(<xbel><bookmark href="file:///a" added="2025-11-01T10:00:00Z"/>)"
         R"(<bookmark href="file:///b" added="2025-01-01T10:00:00Z" )"
         R"(visited="2025-11-02T10:00:00.5Z"/>)"
         R"(<bookmark href="file:///c" modified="2025-11-01T12:00:00+01:00"/></xbel>)",
         {"/b", "/c", "/a"}},
        {"each once, letters of any script",
         R"(<xbel><bookmark href="file:///d/%D8%A3%20b" visited="2025-11-01T10:00:00Z"/>)"
         R"(<bookmark href="file:///d/%D8%A3%20b" visited="2025-11-03T10:00:00Z"/></xbel>)",
         {QString::fromUtf8("/d/أ b")}},
        {"not what is private or far away",
         R"(<xbel xmlns:b="x"><bookmark href="file:///p"><info><metadata><b:private/>)"
         R"(</metadata></info></bookmark><bookmark href="sftp://h/f"/>)"
         R"(<bookmark href="file:///open"><info/></bookmark></xbel>)",
         {"/open"}},
    };
    for (const Case &each : kCases) {
        QStringList paths;
        const auto files = recentFilesIn(each.list, 10);
        ASSERT_TRUE(files) << each.what;
        for (const RecentFile &file : *files) {
            paths << file.path;
        }
        EXPECT_EQ(paths, each.paths) << each.what;
    }
    EXPECT_EQ(recentFilesIn(kCases[1].list, 2)->size(), 2U);
}

// Not as a shorter one, and in words that name no place on the disk.
TEST(RecentFilesTest, TellsOfADamagedList)
{
    const TemporaryFolder folder;
    const QString path = QString::fromStdString((folder.path() / "list.xbel").string());
    for (const char *list :
         {"\x01\x02 not a list",
          R"(<xbel><bookmark href="file:///whole"/><bookmark href="file:///cut"><info>)",
          R"(<xbel><bookmark href="file:///whole"/></wrong>)"}) {
        std::ofstream{path.toStdString()} << list;
        const auto files = readRecentFiles(path, 10);
        ASSERT_FALSE(files) << list;
        EXPECT_EQ(files.error().message, "The list of recent files cannot be read.");
    }
    std::ofstream{path.toStdString()}.close(); // nothing is in it yet
    EXPECT_EQ(readRecentFiles(path, 10)->size(), 0U);
    const auto unread = readRecentFiles(QString::fromStdString(folder.path().string()), 10);
    ASSERT_FALSE(unread);
    EXPECT_EQ(unread.error().message, "The list of recent files cannot be read.");
}

// Also what changes before the watch has begun, as that does not hold up who asks for it; and
// nothing of a path that is wanted no longer.
TEST(FileWatchTest, TellsOfWhatIsWantedOnceForAll)
{
    const RunningModel running;
    const TemporaryFolder folder;
    const auto at = [&](const char *name) {
        return QString::fromStdString((folder.path() / name).string());
    };
    fs::create_directory(folder.path() / "one");
    fs::create_directory(folder.path() / "other");
    FileWatch watch;
    QSignalSpy changed{&watch, &FileWatch::changed};
    watch.watch({at("one"), at("nowhere")});
    write(folder.path() / "one" / "a");
    EXPECT_TRUE(RunningModel::waitUntil([&] { return changed.count() > 0; }));
    changed.clear();
    write(folder.path() / "one" / "b");
    EXPECT_TRUE(RunningModel::waitUntil([&] { return changed.count() > 0; }));
    watch.watch({at("other")});
    changed.clear();
    write(folder.path() / "one" / "c");
    QTest::qWait(500);
    EXPECT_EQ(changed.count(), 0);
    write(folder.path() / "other" / "d");
    EXPECT_TRUE(RunningModel::waitUntil([&] { return changed.count() > 0; }));
    watch.stop();
    changed.clear();
    write(folder.path() / "other" / "e");
    QTest::qWait(500);
    EXPECT_EQ(changed.count(), 0);
}

TEST(FileGlanceTest, TellsSizesAsPeopleDo)
{
    const RunningModel running;
    const std::pair<qint64, const char *> kCases[]{{-1, ""},
                                                   {0, "0 bytes"},
                                                   {999, "999 bytes"},
                                                   {1'000, "1 kB"},
                                                   {214'000, "214 kB"},
                                                   {999'499, "999 kB"},
                                                   {999'500, "1.0 MB"},
                                                   {3'140'000, "3.1 MB"},
                                                   {9'960'000, "10 MB"},
                                                   {48'000'000, "48 MB"},
                                                   {1'200'000'000'000, "1.2 TB"}};
    for (const auto &[bytes, text] : kCases) {
        EXPECT_EQ(sizeText(running.formatting(), bytes), text) << bytes;
    }
}

class ShelfTest : public testing::Test
{
protected:
    ShelfTest()
    {
        setenv("KEST_DATA_DIR", running.path("data").c_str(), 1);
        shelf = std::make_unique<ShelfViewModel>(running.model(), running.formatting());
        tester = std::make_unique<QAbstractItemModelTester>(
            shelf->list(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        QObject::connect(shelf.get(), &ShelfViewModel::changed,
                         [this](const QString &, const auto &way) { undo = way; });
    }

    fs::path file(const char *name) const { return fs::path{running.path("files")} / name; }
    void put(const char *name)
    {
        write(file(name));
        ASSERT_TRUE(shelf->take({urlOf(file(name))}, {}));
        running.settle();
    }
    // What the only thing on the shelf becomes.
    bool becomes(const char *family, const QString &path) const
    {
        return RunningModel::waitUntil([&] {
            return shelf->rows().size() == 1 && shelf->rows().front().family == family &&
                   shelf->rows().front().path == path;
        });
    }

    RunningModel running;
    std::unique_ptr<ShelfViewModel> shelf;
    std::unique_ptr<QAbstractItemModelTester> tester;
    std::function<void()> undo;
};

TEST_F(ShelfTest, TakesWhatIsDroppedByWhatItIs)
{
    write(file("a.pdf"));
    struct Case {
        QList<QUrl> urls;
        QString text;
        bool isTaken;
        QStringList families;
    };
    const Case kCases[]{
        {{}, "", false, {}},
        {{}, " \n ", false, {}},
        {{QUrl{"mailto:a@example.org"}}, "", false, {}},
        {{urlOf(file("a.pdf"))}, "file:///a.pdf", true, {"page"}},
        {{urlOf(file("a.pdf"))}, "", true, {"page"}}, // it is there already
        {{QUrl{"https://example.org/b"}}, "b", true, {"page", "link"}},
        {{}, "two\nlines", true, {"page", "link", "words"}},
    };
    for (const Case &each : kCases) {
        EXPECT_EQ(shelf->take(each.urls, each.text), each.isTaken) << qPrintable(each.text);
        running.settle();
        QStringList families;
        for (const ShelfRow &row : shelf->rows()) {
            families << row.family;
        }
        EXPECT_EQ(families, each.families) << qPrintable(each.text);
    }
    EXPECT_EQ(shelf->textOf(shelf->rows().back().id), "two\nlines");
}

TEST_F(ShelfTest, RefusesAllFilesWhereOneIsNotThere)
{
    write(file("there"));
    const QSignalSpy said{&running.model(), &ApplicationModel::said};
    EXPECT_TRUE(shelf->take({urlOf(file("there")), urlOf(file("gone"))}, {}));
    running.settle();
    EXPECT_EQ(shelf->count(), 0);
    ASSERT_EQ(said.size(), 1);
    EXPECT_TRUE(said.front().front().toString().contains("gone"));
}

TEST_F(ShelfTest, FollowsTheFileWhileItIsShown)
{
    put("report.txt");
    shelf->setShown(true);
    EXPECT_TRUE(becomes("text", QString::fromStdString(file("report.txt"))));
    fs::rename(file("report.txt"), file("final.txt"));
    EXPECT_TRUE(becomes("text", QString::fromStdString(file("final.txt"))));
    EXPECT_EQ(shelf->rows().front().title, "report.txt");
    fs::remove(file("final.txt"));
    EXPECT_TRUE(becomes("missing", ""));
    EXPECT_TRUE(shelf->rows().front().dragData.isEmpty());
    const QSignalSpy wanted{shelf.get(), &ShelfViewModel::openWanted};
    shelf->open(shelf->rows().front().id);
    EXPECT_EQ(wanted.size(), 0);
}

TEST_F(ShelfTest, EveryRemovalHasAWayBack)
{
    put("a.txt");
    put("b.txt");
    put("c.txt");
    const QString b = shelf->rows().at(1).id;
    shelf->rename(b, "  ");
    running.settle();
    EXPECT_FALSE(undo) << "a name of blanks was taken";
    shelf->rename(b, "bee");
    running.settle();
    EXPECT_EQ(titlesOf(shelf->rows()), (QStringList{"a.txt", "bee", "c.txt"}));
    undo();
    running.settle();
    EXPECT_EQ(titlesOf(shelf->rows()), (QStringList{"a.txt", "b.txt", "c.txt"}));
    shelf->remove(b);
    running.settle();
    EXPECT_EQ(titlesOf(shelf->rows()), (QStringList{"a.txt", "c.txt"}));
    undo();
    running.settle();
    shelf->clear();
    running.settle();
    EXPECT_EQ(shelf->count(), 0);
    undo();
    running.settle();
    EXPECT_EQ(titlesOf(shelf->rows()), (QStringList{"a.txt", "b.txt", "c.txt"}));
    EXPECT_TRUE(fs::exists(file("b.txt")));
}

TEST_F(ShelfTest, APictureWithoutAFileGetsOneForAsLongAsItIsNamed)
{
    EXPECT_TRUE(shelf->take({}, {}, "not really a PNG"));
    ASSERT_TRUE(RunningModel::waitUntil([this] { return shelf->count() == 1; }));
    const fs::path folder = fs::path{running.path("data")} / "shelf";
    const auto files = [&folder] {
        return std::distance(fs::directory_iterator{folder}, fs::directory_iterator{});
    };
    EXPECT_EQ(files(), 1);
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
    const auto lookAgain = [this] {
        ShelfViewModel other{running.model(), running.formatting()};
        other.setShown(true);
    };
    write(folder / "theirs.png");
    shelf->remove(shelf->rows().front().id);
    running.settle();
    lookAgain();
    EXPECT_EQ(files(), 2) << "it could still come back";
    running.pass(Base::Seconds{60});
    write(file("other"));
    EXPECT_TRUE(shelf->take({urlOf(file("other"))}, {})); // empties the bin
    running.settle();
    lookAgain();
    EXPECT_TRUE(fs::exists(folder / "theirs.png"));
    EXPECT_EQ(files(), 1);
}

TEST(LinksTest, KeepsWhatIsSoundAndSaysWhatIsNot)
{
    RunningModel running;
    LinksViewModel links{running.model(), running.formatting()};
    const QAbstractItemModelTester tester{
        links.list(), QAbstractItemModelTester::FailureReportingMode::Fatal};
    const QSignalSpy saved{&links, &LinksViewModel::saved};
    const auto save = [&](const char *url, const char *title, const QString &id = {}) {
        links.save(id, url, title, {});
        running.settle();
        return links.refusal();
    };
    const char *kInsecure = "Use a source URL beginning with https://";
    EXPECT_EQ(save("http://example.org", ""), kInsecure);
    EXPECT_EQ(save("example.org", ""), kInsecure);
    EXPECT_EQ(save("javascript:https://example.org", ""), kInsecure);
    EXPECT_NE(save("https://", ""), "");
    EXPECT_EQ(links.count(), 0);
    EXPECT_EQ(save(" HTTPS://Example.org/ ", ""), "");
    EXPECT_EQ(save("https://example.com/travel", "Before travel"), "");
    EXPECT_TRUE(save("https://example.org", "again").contains("saved already"));
    EXPECT_EQ(save("https://example.net", "After"), "");
    EXPECT_EQ(saved.size(), 3);
    EXPECT_EQ(titlesOf(links.rows()), (QStringList{"example.org", "Before travel", "After"}));

    links.move(links.rows().at(2).id, -5);
    running.settle();
    EXPECT_EQ(titlesOf(links.rows()), (QStringList{"After", "example.org", "Before travel"}));
    links.setQuery("travel");
    EXPECT_EQ(titlesOf(links.rows()), QStringList{"Before travel"});
    links.move(links.rows().front().id, -1); // among findings there is no order to change
    running.settle();
    links.setQuery({});
    EXPECT_EQ(links.rows().back().title, "Before travel");

    EXPECT_EQ(save("https://example.com/road", "Before travel", links.rows().back().id), "");
    EXPECT_EQ(links.rows().back().url, "https://example.com/road");
    links.remove(links.rows().front().id);
    running.settle();
    EXPECT_EQ(links.count(), 2);
    links.restore();
    running.settle();
    EXPECT_EQ(links.rows().front().title, "After");
}

TEST(FilesTest, ShowsWhatIsThereAndWhatIsPinned)
{
    RunningModel running;
    const fs::path folder{running.path("home")};
    setenv("XDG_DATA_HOME", folder.c_str(), 1);
    const auto keep = [&folder](const std::string &bookmarks) {
        write(folder / "new", "<xbel>" + bookmarks + "</xbel>");
        fs::rename(folder / "new", folder / "recently-used.xbel");
    };
    const auto bookmark = [&folder](const char *name) {
        return "<bookmark href=\"file://" + (folder / name).string() + "\"/>";
    };
    write(folder / "a.txt");
    write(folder / "b.txt");
    keep(bookmark("a.txt") + bookmark("gone.txt"));
    FilesViewModel files{running.model(), running.formatting()};
    EXPECT_EQ(files.availability(), "loading");
    files.setShown(true);
    const auto shows = [&files](const QStringList &titles) {
        return RunningModel::waitUntil([&] {
            return files.availability() != u"loading" && titlesOf(files.rows()) == titles;
        });
    };
    EXPECT_TRUE(shows({"a.txt"}));
    keep(bookmark("a.txt") + bookmark("b.txt"));
    EXPECT_TRUE(shows({"a.txt", "b.txt"}));

    files.setPinned(QString::fromStdString(folder / "b.txt"), true);
    files.pinUrls({urlOf(folder / "b.txt"), urlOf(folder), QUrl{"https://example.org"}});
    running.settle();
    EXPECT_TRUE(files.rows().back().isPinned);
    files.setSection("pinned");
    EXPECT_TRUE(shows({"b.txt", "home"}));
    fs::remove(folder / "b.txt");
    EXPECT_TRUE(RunningModel::waitUntil(
        [&files] { return files.rows().front().family == u"missing"; }));
    files.move(files.rows().front().id, 1);
    running.settle();
    EXPECT_TRUE(shows({"home", "b.txt"}));
    files.setQuery("B.T");
    EXPECT_TRUE(shows({"b.txt"}));
    files.setQuery("nothing like it");
    EXPECT_EQ(files.availability(), "empty");
}

QImage preview(const fs::path &path, const char *mode, QSize size)
{
    QSize drawn;
    const QString id =
        QStringLiteral("1/") + QLatin1String{mode} +
        QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(path)));
    return PreviewImages{}.requestImage(id, &drawn, size);
}

TEST(PreviewImagesTest, DrawsNoMoreThanIsAskedFor)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "100% [a] أ.png";
    QImage image{400, 100, QImage::Format_RGB32};
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(QString::fromStdString(file)));
    const QImage filled = preview(file, "", {100, 66});
    ASSERT_EQ(filled.size(), QSize(100, 66));
    EXPECT_EQ(qAlpha(filled.pixel(0, 0)), 0) << "its corners are round";
    EXPECT_EQ(filled.pixel(50, 0), qRgb(255, 0, 0)) << "it fills the height";
    EXPECT_EQ(preview(file, "whole/", {100, 66}).size(), QSize(100, 25));
    EXPECT_EQ(preview(file, "whole/", {9'000, 9'000}).size(), QSize(400, 100));
    EXPECT_TRUE(preview(file, "", {}).isNull());
    EXPECT_TRUE(preview(folder.path() / "none.png", "", {100, 66}).isNull());
    const fs::path pipe = folder.path() / "pipe.png";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_TRUE(preview(pipe, "", {100, 66}).isNull());
    EXPECT_FALSE(glanceAt(QString::fromStdString(pipe)).hasPreview);
}

// A few bytes that say they are nine hundred million pixels.
TEST(PreviewImagesTest, LeavesAnEnormousPictureAlone)
{
    const TemporaryFolder folder;
    const fs::path file = folder.path() / "large.bmp";
    QImage image{1, 1, QImage::Format_RGB32};
    ASSERT_TRUE(image.save(QString::fromStdString(file)));
    QFile bytes{QString::fromStdString(file)};
    ASSERT_TRUE(bytes.open(QIODevice::ReadWrite));
    ASSERT_TRUE(bytes.seek(18)); // width and height
    bytes.write(QByteArray::fromHex("3075000030750000"));
    bytes.close();
    EXPECT_TRUE(preview(file, "", {100, 66}).isNull());
}

TEST(NotchDragTest, OpensAClosedPanelOnTheShelf)
{
    RunningModel running;
    App app{running.model()};
    double now = 0;
    NotchDriver driver{running.model(), app, [&now] { return now; }};
    const auto dragIn = [&] {
        driver.drag(true);
        now += 1;
        driver.pointer(true, false);
    };
    app.panel()->openTool("notes");
    driver.drag(true);
    driver.drag(false); // it only came past
    now += 1;
    driver.pointer(true, false);
    now += 1;
    driver.pointer(true, false);
    ASSERT_TRUE(driver.isOpen());
    EXPECT_EQ(app.panel()->tool(), "notes");
    driver.drag(true); // into the open panel
    EXPECT_EQ(app.panel()->tool(), "notes");
    driver.drag(false);
    driver.close();
    driver.pointer(false, false);
    dragIn();
    ASSERT_TRUE(driver.isOpen());
    EXPECT_EQ(app.panel()->tool(), "shelf");
}

} // namespace
