// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/Answers.h"

#include "Base/JsonWriter.h"

template Base::Result<std::string> Base::json::encode(const Cli::ShowAnswer &);
template Base::Result<std::string> Base::json::encode(const Cli::CountAnswer &);
template Base::Result<std::string> Base::json::encode(const Cli::BackupAnswer &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::Finding> &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::TimerAnswer> &);
template Base::Result<std::string> Base::json::encode(const Cli::ConvertAnswer &);
template Base::Result<std::string>
Base::json::encode(const std::vector<Cli::ClipboardAnswer> &);
