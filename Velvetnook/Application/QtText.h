// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>

// Between the text of the engines and that of Qt.
namespace Velvetnook
{

inline QString fromView(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// What was typed in the digits of any script, in those that numbers are read from.
inline QString latinDigits(QString text)
{
    for (QChar &letter : text) {
        if (letter.isDigit()) {
            letter = QChar{u'0' + letter.digitValue()};
        }
    }
    return text;
}

} // namespace Velvetnook
