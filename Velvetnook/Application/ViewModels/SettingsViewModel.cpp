// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/SettingsViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

#include <QVariantMap>

#include <algorithm>
#include <vector>

namespace Velvetnook
{

namespace
{

struct Page {
    const char *id;
    const char *icon;
    int group;
    QString title;
    QString words; // by which a search finds it, beside its title
};

using Pages = std::vector<Page>;

Pages allPages()
{
    return {
        {"general", "settings", 0, SettingsViewModel::tr("General"),
         SettingsViewModel::tr(
             "language arabic english digits clock start login history sound")},
        {"appearance", "palette", 0, SettingsViewModel::tr("Appearance"),
         SettingsViewModel::tr(
             "theme dark light accent colour motion text size surface transliteration")},
        {"notch", "notch", 0, SettingsViewModel::tr("Notch"),
         SettingsViewModel::tr(
             "strip panel delay hidden screen display applications pause pinned")},
        {"shortcuts", "keyboard", 0, SettingsViewModel::tr("Shortcuts"),
         SettingsViewModel::tr("keys palette hotkey keyboard")},
        {"reminders", "bell", 1, SettingsViewModel::tr("Reminders"),
         SettingsViewModel::tr("notification hours days interval pause test")},
        {"prayer", "prayer", 1, SettingsViewModel::tr("Prayer"),
         SettingsViewModel::tr("place city location method asr latitude hijri adjust times")},
        {"tools", "grid", 2, SettingsViewModel::tr("Tools"),
         SettingsViewModel::tr("order favourites tabs header")},
        {"data", "database", 3, SettingsViewModel::tr("Data & backup"),
         SettingsViewModel::tr("export import clear history reset folder file")},
        {"about", "info", 3, SettingsViewModel::tr("About"),
         SettingsViewModel::tr("version licence capabilities")},
    };
}

bool isFoundBy(const Page &page, const QString &query)
{
    const QString text = page.title + u' ' + page.words;
    const QStringList words = query.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(
        words, [&](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

SettingsViewModel::SettingsViewModel(ApplicationModel &model, const Formatting &formatting,
                                     QObject *parent)
    : QObject{parent}, m_general{model, formatting}, m_appearance{model, formatting},
      m_notch{model, formatting}, m_place{model, formatting}, m_prayer{model, formatting},
      m_tools{model}, m_data{model, formatting}, m_page{QStringLiteral("general")}
{
    connect(&formatting, &Formatting::wordsChanged, this, [this] {
        emit pagesChanged();
        emit pageChanged();
    });
    connect(&model, &ApplicationModel::failed, this, &SettingsViewModel::setRefusal);
    connect(&model, &ApplicationModel::stateChanged, this, [this] { setRefusal({}); });
}

QVariantList SettingsViewModel::pages() const
{
    QVariantList list;
    for (const Page &page : allPages()) {
        if (isFoundBy(page, m_query)) {
            list.push_back(QVariantMap{{QStringLiteral("page"), QLatin1String{page.id}},
                                       {QStringLiteral("title"), page.title},
                                       {QStringLiteral("icon"), QLatin1String{page.icon}},
                                       {QStringLiteral("group"), page.group}});
        }
    }
    return list;
}

QString SettingsViewModel::title() const
{
    const Pages pages = allPages();
    const auto found = std::ranges::find_if(
        pages, [this](const Page &page) { return m_page == QLatin1String{page.id}; });
    return found == pages.end() ? QString{} : found->title;
}

void SettingsViewModel::setQuery(const QString &query)
{
    m_query = query;
    emit pagesChanged();
}

void SettingsViewModel::setPage(const QString &page)
{
    const Pages pages = allPages();
    const bool isKnown = std::ranges::any_of(
        pages, [&](const Page &each) { return page == QLatin1String{each.id}; });
    if (isKnown && page != m_page) {
        m_page = page;
        emit pageChanged();
    }
}

void SettingsViewModel::open(const QString &page)
{
    setPage(page);
    emit openWanted();
}

void SettingsViewModel::setRefusal(const QString &refusal)
{
    if (refusal != m_refusal) {
        m_refusal = refusal;
        emit refusalChanged();
    }
}

} // namespace Velvetnook
