// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Theme.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Shell/ShadowImages.h"

#include <QColor>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <cmath>
#include <cstdio>

namespace Velvetnook
{

namespace
{

constexpr int kMeasuredSize = 100;

QString presentFamily(const QString &family);

QJsonObject readTokens()
{
    QFile file{QStringLiteral(":/velvetnook/tokens.json")};
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("unable to find the design tokens");
    }
    return QJsonDocument::fromJson(file.readAll()).object();
}

void insertColours(QQmlPropertyMap &into, const QJsonObject &colours)
{
    for (auto it = colours.begin(); it != colours.end(); ++it) {
        into.insert(it.key(), QColor{it.value().toString()});
    }
}

// What stands in for a family that is not installed.
QString substituteFor(const QString &family)
{
    if (family == QLatin1String{"Inter Display"}) {
        return presentFamily(QStringLiteral("Inter"));
    }
    return family == QLatin1String{"Amiri"} ? QStringLiteral("Noto Sans Arabic")
                                            : QStringLiteral("Noto Sans");
}

QString presentFamily(const QString &family)
{
    if (QFontDatabase::hasFamily(family)) {
        return family;
    }
    static QStringList said;
    const QString substitute = substituteFor(family);
    if (!said.contains(family)) {
        said.append(family);
        std::fprintf(stderr, "velvetnook: the font %s is missing, %s stands in for it\n",
                     qPrintable(family), qPrintable(substitute));
    }
    return substitute;
}

bool isDigit(QChar letter)
{
    return (letter >= u'0' && letter <= u'9') || (letter >= u'٠' && letter <= u'٩');
}

} // namespace

Theme::Theme(const ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_tokens{readTokens()},
      m_ink{presentFamily(m_tokens[u"arabic"].toObject()[u"family"].toString())}
{
    fillFonts();
    const QJsonObject radius = m_tokens[u"radius"].toObject();
    for (auto it = radius.begin(); it != radius.end(); ++it) {
        m_radius.insert(it.key(), it.value().toDouble());
    }
    const QJsonObject motion = m_tokens[u"motion"].toObject();
    for (auto it = motion.begin(); it != motion.end(); ++it) {
        m_motion.insert(it.key(), it.value().toVariant());
    }
    follow();
    connect(&model, &ApplicationModel::stateChanged, this, &Theme::follow);
}

void Theme::fillFonts()
{
    const QJsonObject type = m_tokens[u"type"].toObject();
    for (auto it = type.begin(); it != type.end(); ++it) {
        const QJsonObject role = it.value().toObject();
        const QString family = presentFamily(role[u"family"].toString());
        // Inter has no Arabic letters; these stand in letter by letter.
        QFont::insertSubstitutions(
            family, {QStringLiteral("Noto Sans Arabic"), QStringLiteral("Noto Color Emoji")});
        const int pixelSize = role[u"pixelSize"].toInt();
        QFont font{family};
        font.setPixelSize(pixelSize);
        font.setWeight(static_cast<QFont::Weight>(role[u"weight"].toInt(400)));
        if (font.weight() == QFont::Light) {
            font.setLetterSpacing(QFont::AbsoluteSpacing, -0.02 * pixelSize);
        }
        font.setHintingPreference(QFont::PreferNoHinting);
        m_type.insert(it.key(), font);
        m_lineHeight.insert(it.key(), role[u"lineHeight"].toInt());
    }
}

QPair<qreal, qreal> Theme::extentsOf(const QString &role) const
{
    auto known = m_extents.constFind(role);
    if (known == m_extents.constEnd()) {
        auto font = m_type.value(role).value<QFont>();
        font.setPixelSize(kMeasuredSize);
        const QFontMetricsF metrics{font};
        known = m_extents.insert(
            role, {metrics.ascent() / kMeasuredSize, metrics.descent() / kMeasuredSize});
    }
    return *known;
}

void Theme::fillColours(QQmlPropertyMap &into, const QString &theme, const QString &accent)
{
    const QJsonObject colours = m_tokens[u"color"].toObject();
    insertColours(into, colours[theme].toObject());
    into.insert(QStringLiteral("strip"), QColor{colours[u"strip"].toString()});
    const QJsonObject tones =
        m_tokens[u"accent"].toObject()[accent].toObject()[theme].toObject();
    insertColours(into, tones);
    into.insert(QStringLiteral("accentHover"), QColor{tones[u"hover"].toString()});
    into.insert(QStringLiteral("accentPressed"), QColor{tones[u"pressed"].toString()});
    if (m_moreContrast) {
        into.insert(QStringLiteral("line2"), into.value(QStringLiteral("text3")));
        into.insert(QStringLiteral("text3"), into.value(QStringLiteral("text2")));
    }
}

QString Theme::familyOf(const QString &role) const
{
    return m_type.value(role).value<QFont>().family();
}

int Theme::weightOf(const QString &role) const
{
    return m_type.value(role).value<QFont>().weight();
}

int Theme::pixelSizeOf(const QString &role) const
{
    return m_type.value(role).value<QFont>().pixelSize();
}

QColor Theme::accentOf(const QString &accent) const
{
    const QString theme = m_isDark ? QStringLiteral("dark") : QStringLiteral("light");
    const QJsonObject tones = m_tokens[u"accent"].toObject()[accent].toObject();
    return QColor{tones[theme].toObject()[u"accent"].toString()};
}

qreal Theme::outline()
{
    const qreal ratio = qApp->devicePixelRatio();
    return std::round(1.5 * ratio) / ratio;
}

qreal Theme::strokeFor(int size)
{
    if (size <= 14) {
        return 1.9;
    }
    if (size <= 16) {
        return 1.75;
    }
    return size >= 32 ? 1.3 : 1.6;
}

int Theme::shadowReach(const QString &step) { return ShadowImages::reach(step); }

qreal Theme::baseline(const QString &role, qreal pixelSize, qreal lineHeight) const
{
    const auto [ascent, descent] = extentsOf(role);
    return (lineHeight + (ascent - descent) * pixelSize) / 2;
}

void Theme::spaceLines(QQuickTextDocument *document, qreal extra)
{
    QTextDocument *text = document->textDocument();
    const QTextBlockFormat first = text->begin().blockFormat();
    if (first.lineHeightType() == QTextBlockFormat::LineDistanceHeight) {
        return;
    }
    // Not a step that the user could take back.
    text->setUndoRedoEnabled(false);
    QTextCursor all{text};
    all.select(QTextCursor::Document);
    QTextBlockFormat spaced;
    spaced.setLineHeight(extra, QTextBlockFormat::LineDistanceHeight);
    all.mergeBlockFormat(spaced);
    text->setUndoRedoEnabled(true);
}

qreal Theme::cellWidth(const QString &role, const QString &letter, qreal pixelSize) const
{
    const auto font = m_type.value(role).value<QFont>();
    const bool isDisplay = font.family() == QLatin1String{"Inter Display"};
    if (letter == QLatin1String{":"}) {
        return (isDisplay ? 0.22 : 0.30) * pixelSize;
    }
    if (letter.size() != 1 || !isDigit(letter.front())) {
        return 0;
    }
    return (isDisplay ? 0.58 : 0.66) * pixelSize;
}

void Theme::setMoreContrast(bool moreContrast)
{
    m_moreContrast = moreContrast;
    follow();
}

void Theme::setDesktop(bool isDark, bool reducedMotion)
{
    m_desktopIsDark = isDark;
    m_desktopReducesMotion = reducedMotion;
    follow();
}

qreal Theme::phraseScale() const
{
    const std::string &size = m_model.state().devotional.preferences.textSize;
    if (size == "small") {
        return 0.84;
    }
    return size == "large" ? 1.16 : 1.0;
}

void Theme::follow()
{
    const std::string_view theme = m_model.setting("appearance.theme");
    m_isDark = theme == "dark" || (theme != "light" && m_desktopIsDark);
    m_reducedMotion = m_desktopReducesMotion || m_model.isOn("appearance.reduceMotion");
    const std::string chosen{m_model.setting("appearance.accent")};
    QString accent = QString::fromStdString(chosen);
    if (!m_tokens[u"accent"].toObject().contains(accent)) {
        accent = QStringLiteral("sage");
    }
    // Every count changes the state; to go through the colours each time would hold it up.
    const Look look{.isDark = m_isDark,
                    .reducedMotion = m_reducedMotion,
                    .moreContrast = m_moreContrast,
                    .phraseScale = phraseScale(),
                    .accent = accent};
    if (m_look == look) {
        return;
    }
    m_look = look;
    fillColours(m_color, m_isDark ? QStringLiteral("dark") : QStringLiteral("light"), accent);
    fillColours(m_onStrip, QStringLiteral("dark"), accent);
    emit changed();
}

} // namespace Velvetnook
