// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/SettingsViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/SettingsPages.h"

#include <QVariantMap>

#include <algorithm>

namespace Velvetnook
{

namespace
{

bool isFoundBy(const PageOfSettings &page, const QString &query)
{
    const QString text = titleOf(page) + u' ' + wordsOf(page);
    const QStringList words = query.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(
        words, [&](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

SettingsViewModel::SettingsViewModel(ApplicationModel &model, const Formatting &formatting,
                                     QObject *parent)
    : QObject{parent}, m_general{model, formatting}, m_appearance{model, formatting},
      m_notch{model, formatting}, m_dock{model, formatting}, m_place{model, formatting},
      m_prayer{model, formatting}, m_tools{model}, m_clipboard{model, formatting},
      m_data{model, formatting}, m_shortcuts{model, formatting}, m_about{model, formatting},
      m_page{QStringLiteral("general")}
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
    for (const PageOfSettings &page : pagesOfSettings()) {
        if (isFoundBy(page, m_query)) {
            list.push_back(QVariantMap{{QStringLiteral("page"), QLatin1String{page.id}},
                                       {QStringLiteral("title"), titleOf(page)},
                                       {QStringLiteral("icon"), QLatin1String{page.icon}},
                                       {QStringLiteral("group"), page.group}});
        }
    }
    return list;
}

QString SettingsViewModel::title() const
{
    const auto pages = pagesOfSettings();
    const auto found = std::ranges::find_if(
        pages, [this](const auto &page) { return m_page == QLatin1String{page.id}; });
    return found == pages.end() ? QString{} : titleOf(*found);
}

void SettingsViewModel::setQuery(const QString &query)
{
    m_query = query;
    emit pagesChanged();
}

void SettingsViewModel::setPage(const QString &page)
{
    const bool isKnown = std::ranges::any_of(
        pagesOfSettings(), [&](const auto &each) { return page == QLatin1String{each.id}; });
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
