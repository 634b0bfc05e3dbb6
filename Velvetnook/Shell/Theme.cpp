// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Shell/Theme.h"

#include "Velvetnook/Application/ApplicationModel.h"

#include <QColor>
#include <QFile>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>

namespace Velvetnook
{

namespace
{

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

} // namespace

Theme::Theme(const ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_tokens{readTokens()}
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
        QFont font{role[u"family"].toString()};
        font.setPixelSize(role[u"pixelSize"].toInt());
        font.setWeight(static_cast<QFont::Weight>(role[u"weight"].toInt(400)));
        m_type.insert(it.key(), font);
    }
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
    fillColours(m_color, m_isDark ? QStringLiteral("dark") : QStringLiteral("light"), accent);
    fillColours(m_onStrip, QStringLiteral("dark"), accent);
    emit changed();
}

} // namespace Velvetnook
