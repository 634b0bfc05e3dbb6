// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace Velvetnook
{

class ApplicationModel;
class Formatting;

class LinksViewModel : public QObject
{
    Q_OBJECT

public:
    LinksViewModel(ApplicationModel &model, const Formatting &formatting,
                   QObject *parent = nullptr);

private:
    ApplicationModel &m_model;
    const Formatting &m_formatting;
};

} // namespace Velvetnook
