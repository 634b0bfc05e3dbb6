// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include <QDrag>
#include <QDragEnterEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QUrl>

#include <cstdlib>

// DragPartner FILE LOG X Y: another program's window of 120 by 120, out of which FILE can be
// dragged. Addresses that are dropped on it go to LOG, one a line.
namespace
{

class Partner : public QRasterWindow
{
public:
    Partner(QString file, QString log) : m_file{std::move(file)}, m_log{std::move(log)} {}

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
            static_cast<QDragMoveEvent *>(event)->acceptProposedAction();
            return true;
        }
        if (event->type() == QEvent::Drop) {
            auto *drop = static_cast<QDropEvent *>(event);
            note(drop->mimeData()->urls());
            drop->acceptProposedAction();
            return true;
        }
        return QRasterWindow::event(event);
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (event->buttons() == Qt::LeftButton) {
            auto *drag = new QDrag{this};
            auto *data = new QMimeData;
            data->setUrls({QUrl::fromLocalFile(m_file)});
            drag->setMimeData(data);
            drag->exec(Qt::CopyAction);
        }
    }

    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter{this}.fillRect(QRect{{}, size()}, Qt::darkGray);
    }

private:
    void note(const QList<QUrl> &urls) const
    {
        QFile log{m_log};
        if (log.open(QIODevice::Append)) {
            for (const QUrl &url : urls) {
                log.write(url.toEncoded() + "\n");
            }
        }
    }

    QString m_file;
    QString m_log;
};

} // namespace

int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    const QGuiApplication application{argc, argv};
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 5) {
        return 2;
    }
    Partner window{words[1], words[2]};
    window.setTitle(QStringLiteral("Partner"));
    window.setFlag(Qt::FramelessWindowHint);
    window.setGeometry(words[3].toInt(), words[4].toInt(), 120, 120);
    window.show();
    return QGuiApplication::exec();
}
