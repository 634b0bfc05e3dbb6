// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/Velvetnook/PrivateBus.h"
#include "tests/Velvetnook/XDesktop.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// One thing as a screen reader meets it.
struct Spoken {
    std::string path{}; // of the object on the bus, which stays as long as the thing does
    std::string role{};
    std::string name{};
    bool isFocusable{};
    bool isFocused{};
    bool isShowing{};
    bool isEnabled{};
};

// The bus of a desktop's assistive technology, for programs that are started after it.
class SpokenTree
{
public:
    SpokenTree();

    // All that the application tells of itself; empty while it tells nothing.
    std::vector<Spoken> read();

private:
    QDBusMessage ask(const QString &service, const QString &path, const char *interface,
                     const char *method, const QVariantList &arguments = {});
    void readInto(std::vector<Spoken> &found, const QString &service, const QString &path);

    PrivateBus m_session;
    Child m_launcher;
    std::unique_ptr<QDBusConnection> m_bus;
};
