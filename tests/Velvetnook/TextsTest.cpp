// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/EngineText.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include <algorithm>

// The texts of the interface, in the files that the translators keep.
namespace
{

struct Message {
    QString context{};
    QString source{};
    QString comment{}; // tells equal sources apart
    bool isPlural{};
    bool isUnfinished{};
    QStringList forms{}; // one, or one for each plural form
};

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message{.context = context,
                    .isPlural = xml.attributes().value(QLatin1String{"numerus"}) == u"yes"};
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            message.comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isUnfinished = xml.attributes().hasAttribute(QLatin1String{"type"});
            if (message.isPlural) {
                while (xml.readNextStartElement()) {
                    message.forms.append(xml.readElementText());
                }
            } else {
                message.forms.append(xml.readElementText());
            }
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

std::vector<Message> readMessages(const QString &path)
{
    QFile file{path};
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml{&file};
    std::vector<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"message") {
            messages.push_back(readMessage(xml, context));
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return messages;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression kPlace{QStringLiteral("%(?:\\d|L\\d|n)")};
    QStringList found;
    for (auto it = kPlace.globalMatch(text); it.hasNext();) {
        found.append(it.next().captured());
    }
    found.sort();
    return found;
}

// A plural form may name its number in words ("one", "two") instead of %n.
bool placesAgree(const Message &message, const QString &form)
{
    QStringList wanted = placeholders(message.source);
    if (placeholders(form) == wanted) {
        return true;
    }
    return message.isPlural && wanted.removeOne(QStringLiteral("%n")) &&
           placeholders(form) == wanted;
}

const QString kSources = QStringLiteral(KEST_SOURCE_FOLDER);

TEST(Texts, AreAllTranslatedWithTheirPlaceholders)
{
    struct Case {
        const char *language;
        qsizetype pluralForms;
        std::size_t least; // messages
    };
    for (const auto &[language, pluralForms, least] : {Case{"ar", 6, 200}, Case{"en", 2, 1}}) {
        const auto messages = readMessages(
            kSources + QStringLiteral("/i18n/velvetnook_%1.ts").arg(QLatin1String{language}));
        EXPECT_GE(messages.size(), least);
        for (const Message &message : messages) {
            SCOPED_TRACE(
                qPrintable(QStringLiteral("%1, %2: %3")
                               .arg(QLatin1String{language}, message.context, message.source)));
            EXPECT_FALSE(message.isUnfinished);
            EXPECT_EQ(message.forms.size(), message.isPlural ? pluralForms : 1);
            for (const QString &form : message.forms) {
                EXPECT_FALSE(form.trimmed().isEmpty());
                EXPECT_TRUE(placesAgree(message, form)) << qPrintable(form);
            }
        }
    }
}

TEST(Texts, OfTheSourcesAreAllInTheFiles)
{
    const QTemporaryDir folder;
    for (const char *language : {"ar", "en"}) {
        const QString name = QStringLiteral("velvetnook_%1.ts").arg(QLatin1String{language});
        const QString copy = folder.filePath(name);
        ASSERT_TRUE(QFile::copy(kSources + QStringLiteral("/i18n/") + name, copy));
        QStringList arguments{QStringLiteral("-no-obsolete"),
                              QStringLiteral("-locations"),
                              QStringLiteral("none"),
                              QStringLiteral("-I"),
                              QStringLiteral("."),
                              QStringLiteral("Velvetnook"),
                              QStringLiteral("-ts"),
                              copy};
        if (language == std::string_view{"en"}) {
            arguments.prepend(QStringLiteral("-pluralonly"));
        }
        QProcess lupdate;
        lupdate.setWorkingDirectory(kSources);
        lupdate.start(QStringLiteral(KEST_LUPDATE), arguments);
        ASSERT_TRUE(lupdate.waitForFinished(120'000)) << qPrintable(lupdate.errorString());
        ASSERT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().constData();
        for (const Message &message : readMessages(copy)) {
            EXPECT_FALSE(message.isUnfinished)
                << language << ": " << qPrintable(message.source);
        }
    }
}

// A function beside the classes that looks its words up must do so where lupdate files them.
TEST(Texts, AreLookedUpInContextsThatThereAre)
{
    QStringList contexts;
    for (const Message &message :
         readMessages(kSources + QStringLiteral("/i18n/velvetnook_ar.ts"))) {
        contexts.append(message.context);
    }
    static const QRegularExpression kLookUp{QStringLiteral("translate\\(\\s*\"([A-Za-z:]+)\"")};
    int found = 0;
    QDirIterator files{kSources + QStringLiteral("/Velvetnook"),
                       {QStringLiteral("*.cpp")},
                       QDir::Files,
                       QDirIterator::Subdirectories};
    while (files.hasNext()) {
        QFile file{files.next()};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const auto text = QString::fromUtf8(file.readAll());
        for (auto it = kLookUp.globalMatch(text); it.hasNext(); ++found) {
            const QString context = it.next().captured(1);
            EXPECT_TRUE(contexts.contains(context))
                << qPrintable(file.fileName()) << ": " << qPrintable(context);
        }
    }
    EXPECT_GT(found, 3);
}

TEST(Texts, OfTheEngineNameProgramsOfThisDesktop)
{
    EXPECT_EQ(Velvetnook::engineText(
                  "A copied file has moved or access was revoked. Copy it again from Finder."),
              QStringLiteral("A copied file has moved or access was revoked. Copy it again "
                             "from the file manager."));
}

// What the program carries is the compiled form of these files, under the names that the code
// asks for.
TEST(Texts, AreFoundUnderTheirContextsAtRunTime)
{
    for (const char *language : {"ar", "en"}) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(
            QStringLiteral(":/velvetnook/i18n/velvetnook_%1.qm").arg(QLatin1String{language})));
        const auto messages = readMessages(
            kSources + QStringLiteral("/i18n/velvetnook_%1.ts").arg(QLatin1String{language}));
        for (const Message &message : messages) {
            const QByteArray context = message.context.toUtf8();
            const QByteArray comment = message.comment.toUtf8();
            EXPECT_TRUE(message.forms.contains(translator.translate(
                context, message.source.toUtf8(), comment, message.isPlural ? 1 : -1)))
                << context.constData() << ": " << qPrintable(message.source);
        }
    }
}

} // namespace
