// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// What QML shows of which view the panel shows, its tabs, its footer and what it says.
class PanelViewModel : public QObject
{
    Q_OBJECT

public:
    PanelViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

private:
    ApplicationModel &m_model;
    const Formatting &m_formatting;
};

} // namespace Velvetnook
