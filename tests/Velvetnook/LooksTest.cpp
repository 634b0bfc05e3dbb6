// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "Stage.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{

// The pixels that are not of the black ground.
QRect inkOf(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    int left = image.width();
    int right = -1;
    int top = image.height();
    int bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(line[x]) > 8) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    return {QPoint{left, top}, QPoint{right, bottom}};
}

// The same text painted with all the room in the world.
QRect freeInk(const QString &text, double pixelSize)
{
    QImage image{1800, 600, QImage::Format_RGB32};
    image.fill(Qt::black);
    QPainter painter{&image};
    QFont font{QStringLiteral("Amiri")};
    font.setPixelSize(static_cast<int>(pixelSize));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF{300, 300}, text);
    painter.end();
    return inkOf(image);
}

std::vector<QString> allArabic()
{
    std::vector<QString> texts{QStringLiteral("سُبْحَانَ ٱللَّٰهِ"), QStringLiteral("لَا إِلَٰهَ إِلَّا ٱللَّٰهُ"),
                               QStringLiteral("إٍلٓىٰ")};
    const KestCore::Content &content = KestCore::contentCatalogue();
    for (const auto &phrases : {content.dhikr, content.names}) {
        for (const KestCore::Phrase &phrase : phrases) {
            texts.push_back(QString::fromStdString(phrase.arabic));
        }
    }
    return texts;
}

constexpr int kMargin = 120;

QRectF boxOf(const QQuickItem &item)
{
    return {item.mapToScene({}), QSizeF{item.implicitWidth(), item.implicitHeight()}};
}

class ArabicText : public testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        if (!QFontDatabase::hasFamily(QStringLiteral("Amiri"))) {
            GTEST_SKIP() << "the font Amiri is not installed";
        }
    }
};

// In one line: nothing outside the reserved box, and nothing cut off it.
TEST_P(ArabicText, KeepsAllOfItsInkInItsBox)
{
    Stage stage;
    stage.window().resize(1800, 400);
    auto *item = stage.show("ArabicText { x: 120; y: 120; color: \"white\" }");
    ASSERT_NE(item, nullptr);
    item->setProperty("byInk", GetParam());
    for (const QString &text : allArabic()) {
        item->setProperty("text", text);
        for (const double size : {50.0, 24.0, 17.0, 14.0}) {
            SCOPED_TRACE(qPrintable(text) + std::string{" at "} + std::to_string(size));
            item->setProperty("pixelSize", size);
            const QRect wanted = freeInk(text, size);
            if (wanted.right() > 1700) {
                continue; // too long for the pictures, which prove nothing then
            }
            const QRect drawn = inkOf(stage.window().grabWindow());
            EXPECT_NEAR(drawn.width(), wanted.width(), 1);
            EXPECT_NEAR(drawn.height(), wanted.height(), 1);
            // An edge is smoothed over one more pixel.
            const QRectF box = boxOf(*item).adjusted(-1, -1, 1, 1);
            EXPECT_TRUE(box.contains(QRectF{drawn}))
                << "ink " << drawn.x() << ' ' << drawn.y() << ' ' << drawn.width() << ' '
                << drawn.height() << ", box " << box.x() << ' ' << box.y() << ' ' << box.width()
                << ' ' << box.height();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Boxes, ArabicText, testing::Bool());

TEST(ArabicTextInANarrowPlace, DropsToTwentyFourAndThenWraps)
{
    Stage stage;
    stage.window().resize(900, 900);
    auto *item = stage.show("ArabicText { x: 120; y: 120; color: \"white\"; pixelSize: 50; "
                            "maximumWidth: 120; width: maximumWidth }");
    ASSERT_NE(item, nullptr);
    bool hasDropped = false;
    bool hasWrapped = false;
    for (const QString &text : allArabic()) {
        item->setProperty("text", text);
        for (const double width : {120.0, 220.0, 340.0}) {
            SCOPED_TRACE(qPrintable(text) + std::string{" in "} + std::to_string(width));
            item->setProperty("maximumWidth", width);
            const QImage image = stage.window().grabWindow();
            const double size = item->property("fittedSize").toDouble();
            const int lines = item->property("lineCount").toInt();
            EXPECT_TRUE(size == 50 || std::fmod(size, 2) == 0);
            EXPECT_GE(size, 24);
            EXPECT_TRUE(lines == 1 || size == 24) << "it wraps before it is smallest";
            EXPECT_GE(item->implicitHeight(), 2.15 * size * lines);
            EXPECT_LE(item->implicitHeight(), 2.15 * size * lines + 0.1 * size + 1)
                << "no more than the deepest letter asks for";
            const QRectF box =
                QRectF{kMargin, kMargin, width, item->implicitHeight()}.adjusted(-1, -1, 1, 1);
            const QRect drawn = inkOf(image);
            EXPECT_TRUE(box.contains(QRectF{drawn}))
                << "ink " << drawn.x() << ' ' << drawn.y() << ' ' << drawn.width() << ' '
                << drawn.height() << ", height " << item->implicitHeight();
            hasDropped = hasDropped || (lines == 1 && size < 50);
            hasWrapped = hasWrapped || lines > 1;
        }
    }
    EXPECT_TRUE(hasDropped && hasWrapped) << "the widths do not try what they should";
}

// A text that borrows its letters from another face must not leave its line.
TEST(Txt, StandsOnTheSameBaselineInEveryScript)
{
    Stage stage;
    auto *item = stage.show("Txt { x: 120; y: 120; color: \"white\"; role: \"display\" }");
    ASSERT_NE(item, nullptr);
    int bottoms[2]{};
    for (int at = 0; at < 2; ++at) {
        item->setProperty("text", at == 0 ? QStringLiteral("1") : QStringLiteral("١"));
        const QRect ink = inkOf(stage.window().grabWindow());
        EXPECT_EQ(item->implicitHeight(), 68);
        EXPECT_GE(ink.top(), kMargin);
        EXPECT_LE(ink.bottom(), kMargin + 68);
        bottoms[at] = ink.bottom();
    }
    EXPECT_NEAR(bottoms[0], bottoms[1], 2);
}

TEST(Theme, FollowsTheDesktopUntilTheUserChooses)
{
    Stage stage;
    auto &theme = stage.theme();
    const auto ground = [&] { return theme.color()->value(QStringLiteral("bg0")); };
    EXPECT_TRUE(theme.isDark());
    const QVariant dark = ground();
    theme.setDesktop(false, true);
    EXPECT_FALSE(theme.isDark());
    EXPECT_TRUE(theme.reducedMotion());
    EXPECT_NE(ground(), dark);
    EXPECT_EQ(theme.onStrip()->value(QStringLiteral("bg0")), dark) << "the strip stays dark";
    stage.running().change(
        [](KestCore::NativeState &state) { state.settings["appearance.theme"] = "dark"; });
    EXPECT_EQ(ground(), dark);
    const QVariant note = theme.color()->value(QStringLiteral("text3"));
    theme.setMoreContrast(true);
    EXPECT_EQ(theme.color()->value(QStringLiteral("line2")), note);
    EXPECT_EQ(theme.color()->value(QStringLiteral("text3")),
              theme.color()->value(QStringLiteral("text2")));
    theme.setMoreContrast(false);
    EXPECT_EQ(theme.color()->value(QStringLiteral("text3")), note);
}

} // namespace
