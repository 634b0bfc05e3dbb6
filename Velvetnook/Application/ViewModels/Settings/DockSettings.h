// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Settings/SettingsPage.h"

#include <functional>

namespace KestCore
{
struct DockPreferences;
} // namespace KestCore

namespace Velvetnook
{

// The dock: whether there is one, where it stands, and how it opens.
class DockSettings : public SettingsPage
{
    Q_OBJECT
    // Why there can be none in this session; empty where there can.
    Q_PROPERTY(QString problem READ problem NOTIFY wordsChanged)
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setEnabled NOTIFY changed)
    Q_PROPERTY(QString edge READ edge WRITE setEdge NOTIFY changed)
    Q_PROPERTY(QVariantList edges READ edges NOTIFY wordsChanged)
    Q_PROPERTY(QString mode READ mode WRITE setMode NOTIFY changed)
    Q_PROPERTY(QVariantList modes READ modes NOTIFY wordsChanged)
    Q_PROPERTY(QString iconSize READ iconSize WRITE setIconSize NOTIFY changed)
    Q_PROPERTY(QVariantList iconSizes READ iconSizes NOTIFY wordsChanged)
    Q_PROPERTY(QString panelSize READ panelSize WRITE setPanelSize NOTIFY changed)
    Q_PROPERTY(QVariantList panelSizes READ panelSizes NOTIFY wordsChanged)
    Q_PROPERTY(QString material READ material WRITE setMaterial NOTIFY changed)
    Q_PROPERTY(QVariantList materials READ materials NOTIFY wordsChanged)
    Q_PROPERTY(bool opensByHover READ opensByHover WRITE setOpensByHover NOTIFY changed)
    Q_PROPERTY(bool isFloating READ isFloating WRITE setFloating NOTIFY changed)
    Q_PROPERTY(bool magnifies READ magnifies WRITE setMagnifies NOTIFY changed)

public:
    DockSettings(ApplicationModel &model, const Formatting &formatting,
                 QObject *parent = nullptr);

    static QString problem();
    bool isEnabled() const;
    QString edge() const;
    static QVariantList edges();
    QString mode() const;
    static QVariantList modes();
    QString iconSize() const;
    static QVariantList iconSizes();
    QString panelSize() const;
    static QVariantList panelSizes();
    QString material() const;
    static QVariantList materials();
    bool opensByHover() const;
    bool isFloating() const;
    bool magnifies() const;

    void setEnabled(bool on);
    void setEdge(const QString &value);
    void setMode(const QString &value);
    void setIconSize(const QString &value);
    void setPanelSize(const QString &value);
    void setMaterial(const QString &value);
    void setOpensByHover(bool on);
    void setFloating(bool on);
    void setMagnifies(bool on);

private:
    const KestCore::DockPreferences &dock() const;
    void change(std::function<void(KestCore::DockPreferences &)> edit);
};

} // namespace Velvetnook
