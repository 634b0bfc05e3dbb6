// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ViewModels/Settings/AboutSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/AppearanceSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/ClipboardPage.h"
#include "Velvetnook/Application/ViewModels/Settings/DataSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/DockSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/GeneralSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/NotchSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/PlaceSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/PrayerSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/ShortcutSettings.h"
#include "Velvetnook/Application/ViewModels/Settings/ToolSettings.h"

namespace Velvetnook
{

// What QML shows of the settings window: its pages, each with a model of its own.
class SettingsViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Velvetnook::GeneralSettings *general READ general CONSTANT)
    Q_PROPERTY(Velvetnook::AppearanceSettings *appearance READ appearance CONSTANT)
    Q_PROPERTY(Velvetnook::NotchSettings *notch READ notch CONSTANT)
    Q_PROPERTY(Velvetnook::DockSettings *dock READ dock CONSTANT)
    Q_PROPERTY(Velvetnook::PlaceSettings *place READ place CONSTANT)
    Q_PROPERTY(Velvetnook::PrayerSettings *prayer READ prayer CONSTANT)
    Q_PROPERTY(Velvetnook::ClipboardPage *clipboard READ clipboard CONSTANT)
    Q_PROPERTY(Velvetnook::ToolSettings *tools READ tools CONSTANT)
    Q_PROPERTY(Velvetnook::DataSettings *data READ data CONSTANT)
    Q_PROPERTY(Velvetnook::ShortcutSettings *shortcuts READ shortcuts CONSTANT)
    Q_PROPERTY(Velvetnook::AboutSettings *about READ about CONSTANT)
    // The pages that the search leaves, [{page, title, icon, group}].
    Q_PROPERTY(QVariantList pages READ pages NOTIFY pagesChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY pagesChanged)
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(QString title READ title NOTIFY pageChanged)
    // Why the last choice could not be kept; empty after the next that was.
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)

public:
    SettingsViewModel(ApplicationModel &model, const Formatting &formatting,
                      QObject *parent = nullptr);

    GeneralSettings *general() { return &m_general; }
    AppearanceSettings *appearance() { return &m_appearance; }
    NotchSettings *notch() { return &m_notch; }
    DockSettings *dock() { return &m_dock; }
    PlaceSettings *place() { return &m_place; }
    PrayerSettings *prayer() { return &m_prayer; }
    ToolSettings *tools() { return &m_tools; }
    ClipboardPage *clipboard() { return &m_clipboard; }
    DataSettings *data() { return &m_data; }
    ShortcutSettings *shortcuts() { return &m_shortcuts; }
    AboutSettings *about() { return &m_about; }

    QVariantList pages() const;
    QString query() const { return m_query; }
    QString page() const { return m_page; }
    QString title() const;
    QString refusal() const { return m_refusal; }

    void setQuery(const QString &query);
    void setPage(const QString &page);

    // Shows the window, at this page or where it was.
    Q_INVOKABLE void open(const QString &page = {});

signals:
    void pagesChanged();
    void pageChanged();
    void refusalChanged();
    void openWanted();

private:
    void setRefusal(const QString &refusal);

    GeneralSettings m_general;
    AppearanceSettings m_appearance;
    NotchSettings m_notch;
    DockSettings m_dock;
    PlaceSettings m_place;
    PrayerSettings m_prayer;
    ToolSettings m_tools;
    ClipboardPage m_clipboard;
    DataSettings m_data;
    ShortcutSettings m_shortcuts;
    AboutSettings m_about;
    QString m_query;
    QString m_page;
    QString m_refusal;
};

} // namespace Velvetnook
