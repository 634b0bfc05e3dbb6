// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Languages.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QGuiApplication>

namespace Velvetnook
{

// English has a file too: it holds the singular and plural forms.
bool speak(QTranslator &translator, const QString &language)
{
    return translator.load(
               QStringLiteral(":/velvetnook/i18n/velvetnook_%1.qm").arg(language)) &&
           QCoreApplication::installTranslator(&translator);
}

Languages::Languages(const ApplicationModel &model, const Formatting &formatting,
                     QObject *parent)
    : QObject{parent}, m_formatting{formatting}
{
    connect(&model, &ApplicationModel::stateChanged, this, &Languages::follow);
    follow();
}

Languages::~Languages() { QCoreApplication::removeTranslator(&m_translator); }

void Languages::follow()
{
    const QString language = m_formatting.language();
    if (language == m_language) {
        return;
    }
    m_language = language;
    QCoreApplication::removeTranslator(&m_translator);
    if (!speak(m_translator, language)) {
        qWarning("the texts of the language %s are missing", qPrintable(language));
    }
    QGuiApplication::setLayoutDirection(m_formatting.isRightToLeft() ? Qt::RightToLeft
                                                                     : Qt::LeftToRight);
    emit changed();
}

} // namespace Velvetnook
