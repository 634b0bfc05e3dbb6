// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The database file as another program sees it, past everything that the store does.
namespace RawFile
{

// Runs statements, then folds the log into the file so that its bytes are final.
void execute(const std::filesystem::path &file, const std::string &sql);
// Replaces the body of a table's one row.
void setBody(const std::filesystem::path &file, const std::string &table,
             const std::string &body);
void insertRecord(const std::filesystem::path &file, const std::string &id,
                  const std::string &kind, const std::string &body);
// One text for everything in all tables; equal texts mean equal content.
std::string dump(const std::filesystem::path &file);
// The first column of each row.
std::vector<std::string> query(const std::filesystem::path &file, const std::string &sql);
std::string bytes(const std::filesystem::path &file);
// The names in the file's folder, sorted.
std::vector<std::string> neighbours(const std::filesystem::path &file);

} // namespace RawFile
