// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/HotkeyState.h"

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <cstddef>
#include <memory>
#include <vector>

namespace Velvetnook
{

class App;
class ApplicationModel;
class Formatting;
class PaletteDeeds;
class PaletteRows;
class PaletteSearch;
struct PaletteDeed;
struct PaletteOffer;
struct PaletteRow;

// What QML shows of the command palette: what is typed, what was found and what can be done
// with it.
class PaletteViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT)
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(bool isNothingFound READ isNothingFound NOTIFY rowsChanged)
    Q_PROPERTY(int headCount READ headCount NOTIFY rowsChanged) // of the rows
    // What is seen before it scrolls: so many rows, with their heads.
    Q_PROPERTY(int mostRows READ mostRows CONSTANT)
    Q_PROPERTY(int headsInSight READ headsInSight NOTIFY rowsChanged)
    Q_PROPERTY(QString footer READ footer NOTIFY rowsChanged)
    Q_PROPERTY(QVariantList keys READ keys NOTIFY rowsChanged) // [{key, text}]
    // What the rows are the actions of; empty while they are what was found.
    Q_PROPERTY(QString subject READ subject NOTIFY rowsChanged)
    // "Ctrl+Shift+Space"; empty while there is none.
    Q_PROPERTY(QString hotkeyText READ hotkeyText NOTIFY hotkeyChanged)
    // Whether it works in every window; `hotkeyProblem` says why it does not.
    Q_PROPERTY(bool isHotkeyFull READ isHotkeyFull NOTIFY hotkeyChanged)
    Q_PROPERTY(QString hotkeyProblem READ hotkeyProblem NOTIFY hotkeyChanged)

public:
    PaletteViewModel(App &app, ApplicationModel &model, const Formatting &formatting);
    ~PaletteViewModel() override;
    PaletteViewModel(const PaletteViewModel &) = delete;
    PaletteViewModel &operator=(const PaletteViewModel &) = delete;

    QString query() const { return m_query; }
    QAbstractItemModel *rows();
    int current() const { return m_current; }
    bool isNothingFound() const;
    int headCount() const;
    static int mostRows() { return 9; }
    int headsInSight() const;
    QString footer() const;
    QVariantList keys() const;
    QString subject() const { return m_subject; }
    QString hotkeyText() const { return m_hotkeyText; }
    bool isHotkeyFull() const { return m_hotkey.level == HotkeyState::Level::full; }
    QString hotkeyProblem() const { return m_hotkey.reason; }
    const HotkeyState &hotkey() const { return m_hotkey; }

    void setQuery(const QString &query);
    void setCurrent(int row);
    // What the desktop has made of the key.
    void setHotkey(const QString &text, HotkeyState state);

    // Takes in what has changed since the last time. Call it when the palette is about to be
    // shown; it is then at its beginning.
    Q_INVOKABLE void begin();
    Q_INVOKABLE void move(int rows); // round the ends by one, to the ends by more
    Q_INVOKABLE void moveToEnd(bool isLast);
    Q_INVOKABLE void activate();
    // The second thing that can be done with the row.
    Q_INVOKABLE void activateOther();
    Q_INVOKABLE void showActions();
    Q_INVOKABLE void leaveActions();
    // Opens the panel at its tab of this number.
    Q_INVOKABLE void openTab(int number);
    // One step back: from the actions to what was found, from there to an empty line; false
    // when there is none left, and the palette is to close.
    Q_INVOKABLE bool back();

signals:
    void queryChanged();
    void rowsChanged();
    void currentChanged();
    void hotkeyChanged();
    void openWanted();
    void closeWanted();
    void toggleWanted();

private:
    void find();
    void show();
    std::vector<PaletteRow> offeredRows() const;
    std::vector<PaletteRow> actionRows();
    std::vector<PaletteDeed> deedsOf(const PaletteOffer &offer);
    const PaletteOffer *currentOffer() const;
    void run(const PaletteOffer &offer, std::size_t number);
    void learn(const PaletteOffer &offer);

    App &m_app;
    ApplicationModel &m_model;
    const Formatting &m_formatting;
    std::unique_ptr<PaletteSearch> m_search;
    std::unique_ptr<PaletteDeeds> m_deeds;
    PaletteRows *m_rows;
    QString m_query;
    int m_current = 0;
    QString m_subject;
    std::unique_ptr<PaletteOffer> m_subjectOffer;
    int m_subjectRow = 0;
    QString m_hotkeyText;
    HotkeyState m_hotkey;
};

} // namespace Velvetnook
