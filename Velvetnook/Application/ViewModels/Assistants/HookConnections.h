// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Assistants/HookFile.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <filesystem>
#include <optional>
#include <vector>

namespace Velvetnook
{

// The page on which assistants are connected: each tool with what holds of it, a change shown
// as it would be made, and the writing of it after consent. Nothing is written before that.
// Files are looked at on another thread.
class HookConnections : public QObject
{
    Q_OBJECT
    // [{tool, title, state: "connected" "partial" "off" "missing" "error", note, file}]
    Q_PROPERTY(QVariantList tools READ tools NOTIFY changed)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY planChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    // The change in front of the user: none while `tool` is empty.
    Q_PROPERTY(QString tool READ tool NOTIFY planChanged)
    Q_PROPERTY(QString toolTitle READ toolTitle NOTIFY planChanged)
    Q_PROPERTY(bool isConnecting READ isConnecting NOTIFY planChanged)
    Q_PROPERTY(QString file READ file NOTIFY planChanged)
    Q_PROPERTY(QVariantList lines READ lines NOTIFY planChanged) // [{text, kind}] of the diff
    Q_PROPERTY(QString problem READ problem NOTIFY planChanged)  // why it cannot be made

public:
    // `kest` is what the hooks are to call.
    HookConnections(std::filesystem::path home, std::filesystem::path kest,
                    QObject *parent = nullptr);

    QVariantList tools() const;
    bool isOpen() const { return m_isOpen; }
    bool isBusy() const { return m_isBusy || m_isWriting; }
    QString tool() const { return m_tool; }
    QString toolTitle() const;
    bool isConnecting() const { return m_change == Assistants::HookChange::connect; }
    QString file() const;
    QVariantList lines() const { return m_lines; }
    QString problem() const { return m_problem; }

    Q_INVOKABLE void open();
    Q_INVOKABLE void close();
    Q_INVOKABLE void look();
    Q_INVOKABLE void plan(const QString &tool, bool adds);
    Q_INVOKABLE void write();
    Q_INVOKABLE void cancel();

signals:
    void changed();
    void planChanged();
    // What became of a writing, also where its page was left meanwhile.
    void told(const QString &message);

private:
    enum class State : std::uint8_t { connected, partial, off, missing, error };
    struct Connection {
        const Assistants::HookTool *tool{};
        State state{};
        QString note{};
    };
    using Written = Base::Result<std::optional<std::filesystem::path>>;
    struct Places {
        std::filesystem::path home{};
        std::filesystem::path kest{};
    };

    static std::vector<Connection> connectionsOf(const Places &places);
    static Connection connectionOf(const Assistants::HookTool &tool, const Places &places);
    void show(Base::Result<Assistants::PlannedChange> plan);
    void take(const Written &copy, bool isInFront, const QString &done);
    template <class Work, class Take>
    void inBackground(Work work, Take take);

    Places m_places;
    std::vector<Connection> m_connections;
    QString m_tool;
    Assistants::HookChange m_change{};
    std::optional<Assistants::PlannedChange> m_plan;
    QVariantList m_lines;
    QString m_problem;
    bool m_isOpen = false;
    bool m_isBusy = false;
    bool m_isWriting = false;       // which nothing takes back
    std::uint64_t m_generation = 0; // answers to what is not wanted any more are dropped
};

} // namespace Velvetnook
