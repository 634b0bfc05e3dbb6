// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/Units.h"

#include <QObject>
#include <QString>
#include <QVariantList>

#include <vector>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of the unit converter. The field takes a number or a whole conversion such
// as "5 km to mi", which sets the units once it is finished.
class UnitsViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList categories READ categories NOTIFY wordsChanged) // [{value, label}]
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY changed)
    Q_PROPERTY(QVariantList units READ units NOTIFY unitsChanged) // of the category
    Q_PROPERTY(QString from READ from WRITE setFrom NOTIFY changed)
    Q_PROPERTY(QString to READ to WRITE setTo NOTIFY changed)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(QString result READ result NOTIFY changed)   // empty where there is none
    Q_PROPERTY(QString refusal READ refusal NOTIFY changed) // why there is none
    Q_PROPERTY(QVariantList recent READ recent NOTIFY recentChanged) // the last one first

public:
    static constexpr std::size_t kMostRecent = 5;

    UnitsViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);
    ~UnitsViewModel() override;
    UnitsViewModel(const UnitsViewModel &) = delete;
    UnitsViewModel &operator=(const UnitsViewModel &) = delete;

    QVariantList categories() const;
    QString category() const;
    QVariantList units() const;
    QString from() const;
    QString to() const;
    QString text() const { return m_line; }
    QString result() const;
    QString refusal() const;
    QVariantList recent() const;

    void setCategory(const QString &category);
    void setFrom(const QString &unit);
    void setTo(const QString &unit);
    void setText(const QString &line);

    Q_INVOKABLE void swap();
    // The line is finished: a typed conversion becomes a number and two units.
    Q_INVOKABLE void accept();
    // Puts the result on the clipboard and the conversion among the recent ones; false when
    // there is no result.
    Q_INVOKABLE bool copy();
    Q_INVOKABLE void recall(int index);
    // The view is left: what stands there is kept.
    Q_INVOKABLE void leave();

signals:
    void changed();
    void unitsChanged();
    void wordsChanged();
    void recentChanged();

private:
    void follow();
    void read();
    void tell();
    void show(const KestCore::UnitConversion &conversion);
    KestCore::UnitConversion effective() const;
    QString shown(std::string_view number) const;
    QString lineOf(const KestCore::UnitConversion &conversion) const;
    void remember();
    void write();

    ApplicationModel &m_model;
    const Formatting &m_formatting;
    KestCore::UnitConversion m_conversion; // its text is the line's
    QString m_line;
    std::vector<KestCore::UnitConversion> m_recent;
    std::string m_shownCategory;
    bool m_isChanged = false;
};

} // namespace Velvetnook
