// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/ScreenTimeViewModel.h"

namespace Velvetnook
{

ScreenTimeViewModel::ScreenTimeViewModel(ApplicationModel &model, const Formatting &formatting,
                                         QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
}

} // namespace Velvetnook
