// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/NotesViewModel.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"

namespace Velvetnook
{

NotesViewModel::NotesViewModel(ApplicationModel &model, const Formatting &formatting,
                               QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}
{
}

} // namespace Velvetnook
