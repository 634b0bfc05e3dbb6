// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/UnitsViewModel.h"

#include "Base/Json.h"
#include "KestCore/Tools/TypedConversion.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/QtText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QVariantMap>

#include <algorithm>
#include <array>

namespace Velvetnook
{

namespace
{

using KestCore::UnitConversion;
using KestCore::Units;

constexpr const char *kConversionKey = "units.conversion";
constexpr const char *kRecentKey = "units.recent";
// Numbers pass through the engine as this language writes them.
constexpr const char *kPlainLocale = "en";

struct Category {
    const char *id;
    const char *from; // what it begins with
    const char *to;
};
constexpr std::array kCategories{
    Category{"Length", "km", "mi"},      Category{"Mass", "kg", "lb"},
    Category{"Temperature", "°C", "°F"}, Category{"Area", "m²", "ft²"},
    Category{"Volume", "L", "US gal"},   Category{"Speed", "km/h", "mph"},
    Category{"Data", "GiB", "MB"}};

QVariantMap option(const QString &value, const QString &label)
{
    return {{QStringLiteral("value"), value}, {QStringLiteral("label"), label}};
}

// The line with Latin digits and a point, however this user writes numbers.
std::string plain(const QString &line)
{
    const QString comma = QLocale::system().decimalPoint();
    QString text = line;
    for (QChar &letter : text) {
        if (letter >= u'٠' && letter <= u'٩') {
            letter = QChar{letter.unicode() - u'٠' + u'0'};
        } else if (letter == u'٫' || comma == letter) {
            letter = u'.';
        } else if (letter == QChar{0x2212}) {
            letter = u'-';
        }
    }
    return text.toStdString();
}

// Whether there is more than a number, which may have an exponent.
bool hasWords(const QString &line)
{
    return std::ranges::any_of(
        line, [](QChar letter) { return letter.isLetter() && letter.toLower() != u'e'; });
}

} // namespace

UnitsViewModel::UnitsViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
    read();
    m_shownCategory = effective().category;
    connect(&model, &ApplicationModel::choicesChanged, this, &UnitsViewModel::follow);
    connect(&formatting, &Formatting::wordsChanged, this, [this] {
        emit wordsChanged();
        emit unitsChanged();
        emit recentChanged();
        emit changed();
    });
}

// What stands in the field and is not kept yet is not overwritten.
void UnitsViewModel::follow()
{
    if (!m_isChanged) {
        read();
        tell();
    }
}

void UnitsViewModel::tell()
{
    emit changed();
    const std::string category = effective().category;
    if (category != m_shownCategory) {
        m_shownCategory = category;
        emit unitsChanged();
    }
}

UnitsViewModel::~UnitsViewModel() { leave(); }

void UnitsViewModel::read()
{
    const auto kept = Base::json::decode<UnitConversion>(m_model.setting(kConversionKey));
    m_conversion = kept && Units::isValid(*kept) ? *kept : UnitConversion{};
    m_line = m_formatting.digits(QString::fromStdString(m_conversion.text));
    auto recent = Base::json::decode<std::vector<UnitConversion>>(m_model.setting(kRecentKey))
                      .value_or(std::vector<UnitConversion>{});
    if (recent != m_recent) {
        m_recent = std::move(recent);
        emit recentChanged();
    }
}

QVariantList UnitsViewModel::categories() const
{
    const QString labels[]{tr("Length"), tr("Mass"),  tr("Temperature"), tr("Area"),
                           tr("Volume"), tr("Speed"), tr("Data")};
    QVariantList list;
    for (std::size_t at = 0; at < kCategories.size(); ++at) {
        list.push_back(option(QLatin1String{kCategories.at(at).id}, labels[at]));
    }
    return list;
}

// The conversion that stands there: the one that is being typed, or the number with the units
// that were chosen.
UnitConversion UnitsViewModel::effective() const
{
    const std::string line = plain(m_line);
    if (auto typed = KestCore::typedConversion(line)) {
        return *std::move(typed);
    }
    UnitConversion conversion = m_conversion;
    conversion.text = line;
    return conversion;
}

QString UnitsViewModel::category() const
{
    return QString::fromStdString(effective().category);
}

QString UnitsViewModel::from() const { return QString::fromStdString(effective().from); }
QString UnitsViewModel::to() const { return QString::fromStdString(effective().to); }

QVariantList UnitsViewModel::units() const
{
    const std::string category = effective().category;
    QVariantList list;
    for (const KestCore::UnitDefinition &unit : Units::all()) {
        if (unit.category == category) {
            list.push_back(option(fromView(unit.id), fromView(unit.id)));
        }
    }
    return list;
}

QString UnitsViewModel::shown(std::string_view number) const
{
    QString text = m_formatting.digits(fromView(number));
    if (m_formatting.usesArabicDigits()) {
        text.replace(u'.', u'٫');
    }
    return text;
}

QString UnitsViewModel::result() const
{
    const auto text = Units::resultText(effective(), kPlainLocale);
    return text ? shown(*text) : QString{};
}

QString UnitsViewModel::refusal() const
{
    if (m_line.trimmed().isEmpty() || !result().isEmpty()) {
        return {};
    }
    const auto typed = KestCore::requireConversion(plain(m_line));
    return hasWords(m_line) && !typed ? engineText(typed.error().message)
                                      : fromView(KestCore::kCannotConvert);
}

QString UnitsViewModel::lineOf(const UnitConversion &conversion) const
{
    const auto result = Units::resultText(conversion, kPlainLocale);
    // Isolated, so that an Arabic interface does not tear a number from its unit.
    const auto side = [](const QString &number, const std::string &unit) {
        return QChar{0x2066} + number + u' ' + QString::fromStdString(unit) + QChar{0x2069};
    };
    return QStringLiteral("%1 → %2").arg(
        side(shown(conversion.text), conversion.from),
        side(result ? shown(*result) : QStringLiteral("—"), conversion.to));
}

QVariantList UnitsViewModel::recent() const
{
    QVariantList list;
    for (const UnitConversion &conversion : m_recent) {
        list.push_back(lineOf(conversion));
    }
    return list;
}

void UnitsViewModel::show(const UnitConversion &conversion)
{
    m_conversion = conversion;
    m_line = m_formatting.digits(QString::fromStdString(conversion.text));
    m_isChanged = true;
    tell();
}

void UnitsViewModel::setCategory(const QString &category)
{
    const auto *found = std::ranges::find_if(
        kCategories, [&](const Category &each) { return category == QLatin1String{each.id}; });
    if (found == kCategories.end() || category == this->category()) {
        return;
    }
    const UnitConversion before = effective();
    show({.category = found->id, .from = found->from, .to = found->to, .text = before.text});
}

void UnitsViewModel::setFrom(const QString &unit)
{
    UnitConversion conversion = effective();
    conversion.from = unit.toStdString();
    if (Units::isValid(conversion)) {
        show(conversion);
    }
}

void UnitsViewModel::setTo(const QString &unit)
{
    UnitConversion conversion = effective();
    conversion.to = unit.toStdString();
    if (Units::isValid(conversion)) {
        show(conversion);
    }
}

void UnitsViewModel::setText(const QString &line)
{
    if (line != m_line) {
        m_line = line;
        m_isChanged = true;
        tell();
    }
}

void UnitsViewModel::swap()
{
    UnitConversion conversion = effective();
    std::swap(conversion.from, conversion.to);
    show(conversion);
}

void UnitsViewModel::accept()
{
    const UnitConversion conversion = effective();
    if (Units::isValid(conversion) && !result().isEmpty()) {
        show(conversion);
    }
}

bool UnitsViewModel::copy()
{
    accept();
    const QString text = result();
    if (text.isEmpty()) {
        return false;
    }
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr) {
        QGuiApplication::clipboard()->setText(text);
    }
    remember();
    write();
    tell();
    return true;
}

void UnitsViewModel::remember()
{
    const UnitConversion conversion = effective();
    std::erase(m_recent, conversion);
    m_recent.insert(m_recent.begin(), conversion);
    m_recent.resize(std::min(m_recent.size(), kMostRecent));
    emit recentChanged();
}

void UnitsViewModel::recall(int index)
{
    if (index >= 0 && static_cast<std::size_t>(index) < m_recent.size()) {
        show(m_recent.at(static_cast<std::size_t>(index)));
    }
}

void UnitsViewModel::leave()
{
    if (!m_isChanged) {
        return;
    }
    if (!result().isEmpty()) {
        remember();
    }
    write();
}

void UnitsViewModel::write()
{
    const auto conversion = Base::json::encode(effective());
    const auto recent = Base::json::encode(m_recent);
    if (!conversion || !recent) {
        return;
    }
    m_isChanged = false;
    m_model.changeState(
        [conversion = *conversion,
         recent = *recent](KestCore::NativeState &state) -> Result<void> {
            state.settings[kConversionKey] = conversion;
            state.settings[kRecentKey] = recent;
            return {};
        },
        [self = QPointer{this}](const Result<void> &result) {
            if (!result && self != nullptr) {
                self->m_isChanged = true; // it stands in the field, and is tried again
                emit self->m_model.failed(QString::fromStdString(result.error().message));
            }
        });
}

} // namespace Velvetnook
