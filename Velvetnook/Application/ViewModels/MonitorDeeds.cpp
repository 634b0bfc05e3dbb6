// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorServiceIdentity.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ViewModels/MonitorViewModel.h"

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>
#include <QStandardPaths>

#include <utility>

// What the monitor does when it is asked to: ending, clearing, and its image.
namespace Velvetnook
{

namespace
{

QString imageName()
{
    return QString::fromUtf8(MonitorCore::kImageName.data(),
                             static_cast<qsizetype>(MonitorCore::kImageName.size()));
}

} // namespace

void MonitorViewModel::askToEnd(const QString &rowId, bool kills)
{
    const MonitorCore::AppUsage *app = shownApp();
    if (app == nullptr) {
        return;
    }
    Question question{.kills = kills};
    for (const auto &process : app->processes) {
        if (rowId == m_appId || rowId.toStdString() == process.key.id()) {
            question.processes.push_back(process.key);
            question.title = QString::fromStdString(process.name);
        }
    }
    if (question.processes.empty()) {
        return;
    }
    question.isApplication = rowId == m_appId;
    if (question.isApplication) {
        question.title = m_appTitle;
    }
    m_question = std::move(question);
    emit questionChanged();
}

void MonitorViewModel::askToClear()
{
    m_question = Question{.clears = true};
    emit questionChanged();
}

QString MonitorViewModel::question() const
{
    if (!m_question) {
        return {};
    }
    if (m_question->clears) {
        return tr("Clear the monitor’s history?");
    }
    return m_question->kills ? tr("Kill %1?").arg(m_question->title)
                             : tr("Quit %1?").arg(m_question->title);
}

QString MonitorViewModel::questionBody() const
{
    if (!m_question) {
        return {};
    }
    if (m_question->clears) {
        return tr("All that was recorded so far is deleted. This cannot be undone.");
    }
    if (m_question->kills) {
        return tr("It ends at once. What it has not saved is lost.");
    }
    return tr("It is asked to end, and may save its work first or refuse.");
}

QString MonitorViewModel::questionVerb() const
{
    if (m_question && m_question->clears) {
        return tr("Clear");
    }
    return questionKills() ? tr("Kill") : tr("Quit", "an application");
}

bool MonitorViewModel::questionKills() const
{
    return m_question && (m_question->kills || m_question->clears);
}

void MonitorViewModel::answer(bool isYes)
{
    const auto asked = std::exchange(m_question, std::nullopt);
    emit questionChanged();
    if (asked && isYes) {
        carryOut(*asked);
    }
}

void MonitorViewModel::carryOut(const Question &question)
{
    if (question.clears) {
        m_service.clearHistory([this](const Base::Result<void> &done) {
            emit said(done ? tr("The monitor’s history is cleared.")
                           : engineText(done.error().message));
            m_chart.refresh();
        });
        return;
    }
    const auto how = question.kills ? MonitorTools::Ending::kill : MonitorTools::Ending::quit;
    const QString done = question.kills ? tr("%1 is ended.").arg(question.title)
                                        : tr("Asked %1 to quit.").arg(question.title);
    m_service.end(question.processes, how, [this, done](const Base::Result<void> &ended) {
        emit said(ended ? done : engineText(ended.error().message));
    });
}

QUrl MonitorViewModel::freeImageFile() const
{
    const QDir folder{QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)};
    const QFileInfo plain{imageName()};
    QString name = plain.fileName();
    for (int number = 2; QFileInfo::exists(folder.filePath(name)); ++number) {
        name = QStringLiteral("%1-%2.%3")
                   .arg(plain.completeBaseName(), QString::number(number), plain.suffix());
    }
    return QUrl::fromLocalFile(folder.filePath(name));
}

void MonitorViewModel::saveImage(const QImage &view, const QColor &ground, const QUrl &file)
{
    constexpr int kMargin = 20;
    const qreal scale = view.devicePixelRatio();
    const int margin = static_cast<int>(kMargin * scale);
    QImage picture{view.size() + QSize{2 * margin, 2 * margin}, QImage::Format_RGB32};
    picture.fill(ground);
    QPainter painter{&picture};
    QImage plain = view;
    plain.setDevicePixelRatio(1);
    painter.drawImage(margin, margin, plain);
    painter.end();
    const QFileInfo place{file.toLocalFile()};
    QDir{}.mkpath(place.path());
    QSaveFile written{place.filePath()};
    const bool isWritten = !view.isNull() && written.open(QIODevice::WriteOnly) &&
                           picture.save(&written, "PNG") && written.commit();
    if (isWritten) {
        emit imageSaved(tr("Saved as %1.").arg(place.fileName()),
                        QUrl::fromLocalFile(place.path()));
    } else {
        emit said(tr("The image could not be written: %1").arg(written.errorString()));
    }
}

} // namespace Velvetnook
